#!/usr/bin/env bash
# Works the standard controls of the gallery on a virtual X display with real X events: types
# into an edit, ticks a check box, opens a combo box and picks an item from its list, drags the
# size grip, saving a screenshot after each step into the folder given, and checks what it can.
#
#   scripts/xvfb/standard-controls.sh <screenshot folder> [path to the gallery]
set -euo pipefail

out=${1:?usage: standard-controls.sh <screenshot folder> [gallery]}
here=$(cd "$(dirname "$0")/../.." && pwd)
gallery=${2:-$here/build/apps/gallery/gallery}

source "$(dirname "$0")/common.sh"
start_display :91 1280x800
start_gallery --page 30-standard-controls
window=$(xdotool search --sync --onlyvisible --name "Standard controls" | head -1)
sleep 1

# Where the gallery says its controls are.
place() { report_point "$1" "$window"; }
click() { xdotool mousemove $(place "$1") sleep 0.2 click 1 sleep 0.4; }
pixel() { convert "$out/$1.png" -format "%[pixel:p{$2,$3}]" info:; }

check() { # shot, x, y, is|not, colour, what it means
    local got
    got=$(pixel "$1" "$2" "$3")
    verdict $([[ ($4 == is && $got == "$5") || ($4 == not && $got != "$5") ]] && echo 1 || echo 0) \
        "$6 ($got at $2,$3)"
}

shot 01-shown

click name-edit
# No window manager runs here: the dialog gets the keyboard by hand, right before the keys.
xdotool windowfocus --sync "$window" sleep 0.2 key ctrl+a sleep 0.2 type --delay 60 "Weir crest 2"
sleep 0.5
shot 02-typed
read -r ex ey < <(place name-edit)
field="80x12+$((ex - 40))+$((ey - 6))"
changed=$(pixels_changed 01-shown 02-typed "$field")
verdict $((changed > 50)) "the typed text shows in the edit ($changed pixels changed)"

click unchecked-box
shot 03-ticked
read -r bx by < <(place unchecked-box)
# The check mark is drawn in the window text colour in the middle of the box.
checked=0
for dx in -1 0 1; do
    for dy in -1 0 1; do
        [[ $(pixel 03-ticked $((bx + dx)) $((by + dy))) == "srgb(0,0,0)" ]] && checked=1
    done
done
verdict $checked "the box shows its check mark"

click method-arrow
shot 04-list-open
read -r lx ly < <(place method-list-row-1)
# Right of the item's text, left of the list's scroll bar.
check 04-list-open $((lx + 100)) "$ly" is "srgb(255,255,255)" "the open list shows below the combo"

click method-list-row-1
shot 05-picked
check 05-picked $((lx + 100)) "$ly" not "srgb(255,255,255)" "the list closed after the pick"

# The size grip drags the dialog's corner out.
eval "$(xdotool getwindowgeometry --shell "$window")"
before=$WIDTH
read -r gx gy < <(place size-grip)
xdotool mousemove "$gx" "$gy" sleep 0.3 mousedown 1 sleep 0.3
for step in 1 2 3 4 5 6; do
    xdotool mousemove $((gx + 10 * step)) $((gy + 7 * step)) sleep 0.3
done
xdotool mouseup 1 sleep 0.5
shot 06-resized
eval "$(xdotool getwindowgeometry --shell "$window")"
verdict $((WIDTH == before + 60)) "the size grip widened the dialog by 60 pixels ($before to $WIDTH)"

finish
