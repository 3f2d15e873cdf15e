#!/usr/bin/env bash
# Works the dialogs of the gallery on a virtual X display with real X events: arrows in a radio
# group, Space on a check box and Escape in the options dialog; typing, Tab and Shift+Tab, and
# Enter in the axis titles dialog, which shows its message box, answered with Enter. Saves a
# screenshot after each step into the folder given and checks the pixels and windows it can.
#
#   scripts/xvfb/dialogs.sh <screenshot folder> [path to the gallery]
set -euo pipefail

out=${1:?usage: dialogs.sh <screenshot folder> [gallery]}
here=$(cd "$(dirname "$0")/../.." && pwd)
gallery=${2:-$here/build/apps/gallery/gallery}

source "$(dirname "$0")/common.sh"
start_display :92 1280x800
start_gallery --page 31-dialogs
options=$(xdotool search --sync --onlyvisible --name "Plot Options" | head -1)
axis=$(xdotool search --sync --onlyvisible --name "Axis Titles" | head -1)
sleep 1

pixel() { convert "$out/$1.png" -format "%[pixel:p{$2,$3}]" info:; }
# The mean brightness (0 to 1) of a box of a screenshot.
brightness() { convert "$out/$1.png" -crop "$4x$5+$2+$3" -format "%[fx:mean]" info:; }
# A control's rectangle on the screen: left top right bottom.
place() { # window, name
    local l t r b X Y
    read -r l t r b < <(awk -v n="$2" '$1 == "rect" && $2 == n { print $3, $4, $5, $6 }' \
        "$out/gallery.log")
    [[ -n $l ]] || { echo "no rect \"$2\" in the gallery's report" >&2; exit 1; }
    eval "$(xdotool getwindowgeometry --shell "$1")"
    echo "$((X + l)) $((Y + t)) $((X + r)) $((Y + b))"
}
key() { xdotool key --delay 150 "$@"; sleep 0.4; }

darker() { awk -v a="$1" -v b="$2" 'BEGIN { print (b < a - 0.02) ? 1 : 0 }'; }

# The options dialog: no window manager runs here, so the dialog gets the keyboard by hand.
xdotool windowfocus --sync "$options"
sleep 0.5
shot 01-options
read -r bl bt br bb < <(place "$options" options-bars)
bars_before=$(brightness 01-options "$bl" "$bt" 16 $((bb - bt)))
key Down # from Points to Bars, which the arrow chooses
shot 02-bars-chosen
bars_after=$(brightness 02-bars-chosen "$bl" "$bt" 16 $((bb - bt)))
verdict "$(darker "$bars_before" "$bars_after")" "Down moved to Bars and chose it"

read -r ll lt lr lb < <(place "$options" options-legend)
legend_before=$(brightness 02-bars-chosen "$ll" "$lt" 16 $((lb - lt)))
key Tab space # to Legend, and untick it
shot 03-legend-unticked
legend_after=$(brightness 03-legend-unticked "$ll" "$lt" 16 $((lb - lt)))
verdict "$(darker "$legend_after" "$legend_before")" "Tab reached Legend and Space unticked it"

key Escape
shot 04-options-cancelled
gone=1
xdotool search --onlyvisible --name "Plot Options" >/dev/null 2>&1 && gone=0
verdict "$gone" "Escape cancelled the options dialog"

# The axis titles dialog: the focus comes back to the X title with its text selected.
xdotool windowfocus --sync "$axis"
sleep 0.5
xdotool type --delay 60 "Flow (l/s)"
key Tab
xdotool type --delay 60 "Depth (m)"
sleep 0.4
shot 05-typed

read -r ol ot or ob < <(place "$axis" axis-ok)
read -r cl ct cr cb < <(place "$axis" axis-cancel)
ok_default=$(pixel 05-typed "$ol" $(((ot + ob) / 2)))
verdict "$([[ $ok_default == "srgb(0,0,0)" ]] && echo 1 || echo 0)" \
    "OK shows the default frame while an edit has the focus"
key Tab Tab # OK, then Cancel: the default look follows the focused push button
shot 06-cancel-focused
cancel_frame=$(pixel 06-cancel-focused "$cl" $(((ct + cb) / 2)))
ok_frame=$(pixel 06-cancel-focused "$ol" $(((ot + ob) / 2)))
verdict "$([[ $cancel_frame == "srgb(0,0,0)" && $ok_frame != "srgb(0,0,0)" ]] && echo 1 || echo 0)" \
    "Tab moved the focus and the default frame to Cancel"

key shift+Tab shift+Tab # back to the Y title
shot 07-back-in-y-title
key Return
box=$(xdotool search --sync --onlyvisible --name "^Plot$" | head -1)
xdotool windowfocus --sync "$box"
sleep 0.5
shot 08-message-box
key Return
sleep 1
shot 09-closed
ended=1
kill -0 "$gallery_pid" 2>/dev/null && ended=0
verdict "$ended" "Enter in the message box ended it and the dialog, and the gallery with them"
chosen=$(grep -c "axis titles chosen: Flow (l/s) | Depth (m)" "$out/gallery.log" || true)
verdict "$([[ $chosen == 1 ]] && echo 1 || echo 0)" "OK saved both typed titles"

finish
