#!/usr/bin/env bash
# The form controls on a real X display: starts Xvfb on :97, opens the gallery's form page as a
# real window, types into its numeric fields with X key events, resizes the dialog larger and
# then below its minimum, and saves a screenshot after each step into the folder given.
#   scripts/xvfb/form-controls.sh <screenshot folder> [build folder]
set -euo pipefail

out=${1:?usage: form-controls.sh <screenshot folder> [build folder]}
build=${2:-build}
gallery="$build/apps/gallery/gallery"
for tool in Xvfb xdotool import; do
  command -v "$tool" >/dev/null || { echo "form-controls: $tool is missing" >&2; exit 1; }
done
[ -x "$gallery" ] || { echo "form-controls: no gallery at $gallery" >&2; exit 1; }

source "$(dirname "$0")/common.sh"
start_display :97 1024x768
start_gallery --page 50-form-controls

window=""
for _ in $(seq 300); do
  window=$(xdotool search --name '^Pipe flow$' 2>/dev/null | head -1 || true)
  [ -n "$window" ] && break
  sleep 0.1
done
[ -n "$window" ] || { echo "form-controls: the dialog did not appear" >&2; exit 1; }

# The repaint after a key or a resize reaches the screen before the picture is taken.
settled_shot() { sleep 0.3; shot "$1"; }
size_of() { xdotool getwindowgeometry "$window" | awk '/Geometry/ {print $2}'; }

xdotool windowactivate --sync "$window" 2>/dev/null || xdotool windowfocus "$window"
settled_shot 1-opened

# Points of the fields in the dialog's X window, which holds the frame: a 4 px sizing border
# and an 18 px caption above the client area, where the fields' rows are 18 dialog units
# (29 px) apart and begin 8 units (13 px) down.
field_x=200
diameter_y=45
velocity_y=$(( diameter_y + 2 * 29 ))
xdotool mousemove --window "$window" "$field_x" "$diameter_y" click 1
xdotool key --window "$window" ctrl+a
xdotool type --window "$window" --delay 40 "0.9x,"   # the x and the comma are refused
xdotool key --window "$window" Tab
settled_shot 2-diameter-typed

xdotool mousemove --window "$window" "$field_x" "$velocity_y" click 1
xdotool key --window "$window" ctrl+a
xdotool type --window "$window" --delay 40 "2.5e0"
xdotool key --window "$window" Tab
settled_shot 3-velocity-typed

xdotool windowsize --sync "$window" 620 420 2>/dev/null || xdotool windowsize "$window" 620 420
settled_shot 4-resized-larger

# The dialog may not become smaller than its design size, which the gallery reports.
read -r min_w min_h < <(sed -n 's/.*Resized from \([0-9]*\) x \([0-9]*\).*/\1 \2/p' "$out/gallery.log")
xdotool windowsize "$window" 120 80
settled_shot 5-below-minimum
IFS=x read -r got_w got_h < <(size_of)
echo "form-controls: asked for 120x80 of a dialog whose minimum is ${min_w}x${min_h}: got ${got_w}x${got_h}"
verdict $((got_w >= min_w && got_h >= min_h)) "the dialog kept its minimum size"
finish
