#!/usr/bin/env bash
# Opens the chart's own dialogs from the gallery's chart page on a virtual X display with real
# X events: the options dialog (a new title typed, the X grid lines unticked, OK), the export
# dialog (a file name typed, OK) and the maximised view (closed with Escape). Saves a screenshot
# after each step into the folder given and checks what it can.
#
#   scripts/xvfb/chart-dialogs.sh <screenshot folder> [path to the gallery]
set -euo pipefail

out=${1:?usage: chart-dialogs.sh <screenshot folder> [gallery]}
here=$(cd "$(dirname "$0")/../.." && pwd)
gallery=${2:-$here/build/apps/gallery/gallery}

source "$(dirname "$0")/common.sh"
start_display :83 1920x1080
start_gallery --page 62-chart-dialogs
host=$(xdotool search --sync --onlyvisible --name "^Chart dialogs$" | head -1)
sleep 1

click() { # screen x, y
    xdotool mousemove --sync "$1" "$2" click 1
    sleep 0.5
}
click_at() { # name, window
    local x y
    read -r x y < <(report_point "$1" "$2")
    click "$x" "$y"
}
visible() { xdotool search --onlyvisible --name "$1" >/dev/null 2>&1 && echo 1 || echo 0; }

# The chart's area of the host, as a region of a screenshot.
eval "$(xdotool getwindowgeometry --shell "$host")"
chart_region="$((WIDTH - 20))x$((HEIGHT - 80))+$((X + 10))+$((Y + 30))"

xdotool windowfocus --sync "$host"
shot 01-host

# Options: a new main title and no vertical grid lines.
click_at customize-button "$host"
customize=$(xdotool search --sync --onlyvisible --name "^Customize Chart$" | head -1)
xdotool windowfocus --sync "$customize"
sleep 0.5
click_at customize-title "$customize"
xdotool key --delay 100 ctrl+a
xdotool type --delay 40 "Ratings after the flood"
click_at customize-x-grid "$customize"
shot 02-customize
click_at customize-ok "$customize"
sleep 0.5
shot 03-customized
expect "OK closed the options dialog" "$(visible '^Customize Chart$')" 0
changed=$(pixels_changed 01-host 03-customized "$chart_region")
verdict "$([[ $changed -gt 500 ]] && echo 1 || echo 0)" \
    "the chart was drawn again with the new title and grid ($changed pixels changed)"

# Export: a PNG at the chart's own size.
click_at export-button "$host"
export=$(xdotool search --sync --onlyvisible --name "^Export Chart$" | head -1)
xdotool windowfocus --sync "$export"
sleep 0.5
click_at export-file "$export"
xdotool type --delay 20 "$out/exported"
shot 04-export
click_at export-ok "$export"
sleep 0.5
expect "OK closed the export dialog" "$(visible '^Export Chart$')" 0
verdict "$([[ -s $out/exported.png ]] && echo 1 || echo 0)" "the export wrote $out/exported.png"
if [[ -s $out/exported.png ]]; then
    # The chart fills the host's client area, inside the dialog frame's three pixels a side.
    expect "the exported picture has the chart's size" \
        "$(identify -format "%w" "$out/exported.png")" "$((WIDTH - 6))"
fi

# The maximised view, closed with Escape.
click_at maximise-button "$host"
view=$(xdotool search --sync --onlyvisible --name "^Ratings after the flood$" | head -1)
xdotool windowfocus --sync "$view"
sleep 0.5
shot 05-maximised
eval "$(xdotool getwindowgeometry --shell "$view")"
verdict "$([[ $WIDTH -ge 1000 ]] && echo 1 || echo 0)" "the maximised view is $WIDTH pixels wide"
xdotool key Escape
sleep 0.5
shot 06-closed
expect "Escape closed the maximised view" "$(visible '^Ratings after the flood$')" 0
expect "the host is still there" "$(visible '^Chart dialogs$')" 1

finish
