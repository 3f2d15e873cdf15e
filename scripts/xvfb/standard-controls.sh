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
display=:91
mkdir -p "$out"

Xvfb "$display" -screen 0 1280x800x24 -nolisten tcp >"$out/xvfb.log" 2>&1 &
xvfb=$!
app=
cleanup() {
    [[ -n $app ]] && kill "$app" 2>/dev/null || true
    kill "$xvfb" 2>/dev/null || true
}
trap cleanup EXIT
export DISPLAY=$display
for _ in $(seq 50); do xdpyinfo >/dev/null 2>&1 && break; sleep 0.1; done

stdbuf -oL "$gallery" --out "$out/gallery" --page 30-standard-controls --window >"$out/gallery.log" 2>&1 &
app=$!
window=$(xdotool search --sync --onlyvisible --name "Standard controls" | head -1)
sleep 1

# Where the gallery says its controls are, relative to the dialog's corner.
place() {
    local x y
    read -r x y < <(awk -v n="$1" '$1 == "at" && $2 == n { print $3, $4 }' "$out/gallery.log")
    [[ -n $x ]] || { echo "no place \"$1\" in the gallery's report" >&2; exit 1; }
    eval "$(xdotool getwindowgeometry --shell "$window")"
    echo "$((X + x)) $((Y + y))"
}
click() { xdotool mousemove $(place "$1") sleep 0.2 click 1 sleep 0.4; }
shot() { import -window root "$out/$1.png"; echo "$out/$1.png"; }
pixel() { convert "$out/$1.png" -format "%[pixel:p{$2,$3}]" info:; }

failures=0
verdict() { # passed (0 or 1), what it means
    if (($1)); then echo "ok: $2"; else echo "FAILED: $2"; failures=$((failures + 1)); fi
}
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
convert "$out/01-shown.png" -crop "$field" +repage "$out/field-before.png"
convert "$out/02-typed.png" -crop "$field" +repage "$out/field-after.png"
changed=$(compare -metric AE "$out/field-before.png" "$out/field-after.png" null: 2>&1 || true)
verdict $((${changed%% *} > 50)) "the typed text shows in the edit ($changed pixels changed)"

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

echo "$failures failure(s); screenshots in $out"
exit $((failures > 0))
