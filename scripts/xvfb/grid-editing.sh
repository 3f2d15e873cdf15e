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
display=:96
mkdir -p "$out"

Xvfb "$display" -screen 0 1024x700x24 -nolisten tcp >"$out/xvfb.log" 2>&1 &
xvfb=$!
app=
cleanup() {
    [[ -n $app ]] && kill "$app" 2>/dev/null || true
    kill "$xvfb" 2>/dev/null || true
}
trap cleanup EXIT
export DISPLAY=$display
for _ in $(seq 50); do xdpyinfo >/dev/null 2>&1 && break; sleep 0.1; done

stdbuf -oL "$gallery" --out "$out/gallery" --page 41-grid-editing --window >"$out/gallery.log" 2>&1 &
app=$!
window=$(xdotool search --sync --onlyvisible --name "Pipe schedule" | head -1)
sleep 1

# Where the gallery says a point of the grid is, on the screen.
place() {
    local x y
    read -r x y < <(awk -v n="$1" '$1 == "at" && $2 == n { print $3, $4 }' "$out/gallery.log")
    [[ -n $x ]] || { echo "no place \"$1\" in the gallery's report" >&2; exit 1; }
    eval "$(xdotool getwindowgeometry --shell "$window")"
    echo "$((X + x)) $((Y + y))"
}
shot() { import -window root "$out/$1.png"; echo "$out/$1.png"; }

failures=0
verdict() { # passed (0 or 1), what it means
    if (($1)); then echo "ok: $2"; else echo "FAILED: $2"; failures=$((failures + 1)); fi
}
# How many pixels of a region (WxH+X+Y on the screen) differ between two screenshots.
changed() {
    convert "$out/$1.png" -crop "$3" +repage "$out/crop-a.png"
    convert "$out/$2.png" -crop "$3" +repage "$out/crop-b.png"
    local count
    count=$(compare -metric AE "$out/crop-a.png" "$out/crop-b.png" null: 2>&1 || true)
    echo "${count%% *}"
}

shot 01-shown
read -r cx cy < <(place edit-cell)
# No window manager runs here: the window gets the keyboard by hand, right before the keys.
xdotool mousemove "$cx" "$cy" sleep 0.2 click 1 sleep 0.4
xdotool windowfocus --sync "$window" sleep 0.2 type --delay 80 "Ductile iron"
xdotool key Return sleep 0.5
shot 02-edited
n=$(changed 01-shown 02-edited "90x16+$((cx - 45))+$((cy - 8))")
verdict $((n > 40)) "the typed text shows in the cell ($n pixels changed)"

read -r dx dy < <(place divider)
xdotool mousemove "$dx" "$dy" sleep 0.3 mousedown 1 sleep 0.2 \
    mousemove $((dx + 20)) "$dy" sleep 0.2 mousemove $((dx + 45)) "$dy" sleep 0.3 mouseup 1
sleep 0.5
shot 03-divider
# The columns right of the divider moved 45 pixels: the old heading text there is gone.
n=$(changed 02-edited 03-divider "40x14+$((dx + 5))+$((dy - 7))")
verdict $((n > 40)) "the column widened and the headings after it moved ($n pixels changed)"

read -r hx hy < <(place length-heading)
xdotool mousemove "$hx" "$hy" sleep 0.3 click 1 sleep 0.6
shot 04-sorted
n=$(changed 03-divider 04-sorted "60x120+$((hx - 30))+$((hy + 10))")
verdict $((n > 100)) "the rows came in a new order after the heading click ($n pixels changed)"

echo "screenshots in $out"
exit $((failures > 0))
