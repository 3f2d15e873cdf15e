#!/usr/bin/env bash
# Works the editable grid of the gallery on a virtual X display with real X events: types a
# new text into a cell, drags a column divider, and sorts a column by a click on its heading,
# saving a screenshot after each step into the folder given and checking what changed.
#
#   scripts/xvfb/grid-editing.sh <screenshot folder> [path to the gallery]
set -euo pipefail

out=${1:?usage: grid-editing.sh <screenshot folder> [gallery]}
here=$(cd "$(dirname "$0")/../.." && pwd)
gallery=${2:-$here/build/apps/gallery/gallery}

source "$(dirname "$0")/common.sh"
start_display :96 1024x700
start_gallery --page 41-grid-editing
window=$(xdotool search --sync --onlyvisible --name "Pipe schedule" | head -1)
sleep 1

# Where the gallery says a point of the grid is, on the screen.
place() { report_point "$1" "$window"; }


shot 01-shown
read -r cx cy < <(place edit-cell)
# No window manager runs here: the window gets the keyboard by hand, right before the keys.
xdotool mousemove "$cx" "$cy" sleep 0.2 click 1 sleep 0.4
xdotool windowfocus --sync "$window" sleep 0.2 type --delay 80 "Ductile iron"
xdotool key Return sleep 0.5
shot 02-edited
n=$(pixels_changed 01-shown 02-edited "90x16+$((cx - 45))+$((cy - 8))")
verdict $((n > 40)) "the typed text shows in the cell ($n pixels changed)"

read -r dx dy < <(place divider)
xdotool mousemove "$dx" "$dy" sleep 0.3 mousedown 1 sleep 0.2 \
    mousemove $((dx + 20)) "$dy" sleep 0.2 mousemove $((dx + 45)) "$dy" sleep 0.3 mouseup 1
sleep 0.5
shot 03-divider
# The columns right of the divider moved 45 pixels: the old heading text there is gone.
n=$(pixels_changed 02-edited 03-divider "40x14+$((dx + 5))+$((dy - 7))")
verdict $((n > 40)) "the column widened and the headings after it moved ($n pixels changed)"

read -r hx hy < <(place length-heading)
xdotool mousemove "$hx" "$hy" sleep 0.3 click 1 sleep 0.6
shot 04-sorted
n=$(pixels_changed 03-divider 04-sorted "60x120+$((hx - 30))+$((hy + 10))")
verdict $((n > 100)) "the rows came in a new order after the heading click ($n pixels changed)"

finish
