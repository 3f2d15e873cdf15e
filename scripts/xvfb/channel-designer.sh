#!/usr/bin/env bash
# Drives Channel Designer on a virtual X display with real X events, along its main path: opens
# a reach from the File menu, edits an invert in the sheet with the mouse and the keys and sees
# the long profile follow, opens the plot's menu with a right click, opens the flow calculator
# from the Reach menu and types a depth, then closes it. Saves a screenshot after each step into
# the folder given, and checks what it can.
#
#   scripts/xvfb/channel-designer.sh <screenshot folder> [channel-designer binary]
set -euo pipefail

out=${1:?usage: channel-designer.sh <screenshot folder> [channel-designer binary]}
app=${2:-build/apps/channel-designer/channel-designer}

source "$(dirname "$0")/common.sh"

wait_for() { # a command, polled until it succeeds or thirty seconds pass
    for _ in $(seq 300); do
        if "$@" >/dev/null 2>&1; then return 0; fi
        sleep 0.1
    done
    echo "channel-designer.sh: timed out waiting for: $*" >&2
    return 1
}
click() { xdotool mousemove "$1" "$2" sleep 0.2 click "${3:-1}" sleep 0.5; }
keys() { xdotool key --delay 120 "$@"; sleep 0.6; }
pixel() { # the colour at a screen point of a screenshot, as #RRGGBB
    convert "$out/$1.png" -crop "1x1+$2+$3" -depth 8 txt:- | grep -o '#[0-9A-F]\{6\}' | head -1
}

start_display :84 1280x900
mkdir -p "$out"
TMPDIR=$(mktemp -d) "$app" --empty >"$out/app.log" 2>&1 &
gallery_pid=$! # common.sh stops it with the display
wait_for xdotool search --name "Channel Designer"
frame=$(xdotool search --name "Channel Designer" | head -1)
xdotool windowfocus --sync "$frame" # no window manager gives it the keyboard
sleep 0.5 # the first frames reach the screen
shot 1-started

# The frame sits at (0, 0): its border is 4 pixels and its caption and menu bar 19 each, so the
# document area starts at (6, 44); the menu bar's File lies at x = 19 and Reach at x = 57, on
# y = 31, and their pop-ups' items start on y = 52, 17 pixels apart. The reach window opens at
# its top left corner: the sheet's heading row lies on y = 80 and its rows follow 22 pixels
# apart; the Invert column is centred on x = 172. The long profile's plot area spans x 80 to 570 and y 340 to 730.
active=#0A246A

# File > Open Example: Mill Creek.
click 19 31
shot 2-file-menu
click 90 69
shot 3-reach-opened
expect "the reach window opened active" "$(pixel 3-reach-opened 300 56)" "$active"

# The invert of section 2: a click on the cell, the new level typed, Return.
xdotool windowfocus --sync "$frame" # the menu's pop-up had the keyboard
click 172 124
xdotool type --delay 120 "102.3"
keys Return
shot 4-invert-edited
changed=$(pixels_changed 3-reach-opened 4-invert-edited 490x390+80+340)
verdict "$([[ $changed -gt 50 ]] && echo 1 || echo 0)" \
    "the long profile redrew after the edit ($changed pixels changed)"

# A right click on the long profile shows the plot's menu; Escape closes it.
click 450 420 3
shot 5-plot-menu
changed=$(pixels_changed 4-invert-edited 5-plot-menu 200x200+450+420)
verdict "$([[ $changed -gt 500 ]] && echo 1 || echo 0)" \
    "the plot's menu opened under the mouse ($changed pixels changed)"
keys Escape

# Reach > Flow Calculator: the dialog opens over the frame; a depth typed recomputes the rest.
click 57 31
click 90 52
wait_for xdotool search --name "Flow calculator"
dialog=$(xdotool search --name "Flow calculator" | head -1)
xdotool windowfocus --sync "$dialog"
shot 6-flow-calculator
eval "$(xdotool getwindowgeometry --shell "$dialog")"
# The depth field: the dialog's font makes a dialog unit 1.5 pixels across and 1.625 down.
click $((X + 290)) $((Y + 22 + 276))
keys ctrl+a
xdotool type --delay 120 "1.2"
sleep 0.6
shot 7-depth-typed
changed=$(pixels_changed 6-flow-calculator 7-depth-typed "${WIDTH}x80+$X+$((Y + 250))")
verdict "$([[ $changed -gt 20 ]] && echo 1 || echo 0)" \
    "discharge and velocity recomputed as the depth was typed ($changed pixels changed)"
keys Escape
keys Escape
shot 8-dialog-closed
if xdotool search --name "Flow calculator" >/dev/null 2>&1; then
    verdict 0 "Escape closes the flow calculator"
else
    verdict 1 "Escape closes the flow calculator"
fi

finish
