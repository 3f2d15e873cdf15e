#!/usr/bin/env bash
# Shows the plot windows of the gallery on a virtual X display: the document frame with its
# line, bar and real-time plots, the free plot and the canvas dialog. Checks with real time and
# real X events that the real-time plot moves on by itself and that a box dragged over the free
# plot zooms it, saving a screenshot after each step into the folder given.
#
#   scripts/xvfb/plots.sh <screenshot folder> [path to the gallery]
set -euo pipefail

out=${1:?usage: plots.sh <screenshot folder> [gallery]}
here=$(cd "$(dirname "$0")/../.." && pwd)
gallery=${2:-$here/build/apps/gallery/gallery}

source "$(dirname "$0")/common.sh"
start_display :95 1600x1000
start_gallery --page 60-plot-windows
frame=$(xdotool search --sync --onlyvisible --name "plot documents" | head -1)
free=$(xdotool search --sync --onlyvisible --name "Double click in plot" | head -1)
dialog=$(xdotool search --sync --onlyvisible --name "^Cross-section$" | head -1)
sleep 1

# The part of a screenshot inside a window, less its frame and caption.
crop() { # shot, window, name of the cropped picture
    eval "$(xdotool getwindowgeometry --shell "$2")"
    convert "$out/$1.png" -crop "$((WIDTH - 8))x$((HEIGHT - 30))+$((X + 4))+$((Y + 26))" +repage \
        "$out/$3.png"
}
differs() { # two pictures: true when some pixel differs
    local changed
    changed=$(compare -metric AE "$out/$1.png" "$out/$2.png" null: 2>&1 || true)
    [[ ${changed%% *} != 0 ]]
}

check() { # condition command..., what it means
    if "${@:1:$#-1}"; then verdict 1 "${*: -1}"; else verdict 0 "${*: -1}"; fi
}

shot 01-shown
crop 01-shown "$frame" 01-documents
sleep 2
shot 02-two-seconds-later
crop 02-two-seconds-later "$frame" 02-documents
check differs 01-documents 02-documents "the real-time plot moved on by itself on the host clock"

# A box dragged across the free plot's data, right of the dialog that overlaps it, zooms the
# chart in.
crop 02-two-seconds-later "$free" 02-free
eval "$(xdotool getwindowgeometry --shell "$dialog")"
left=$((X + WIDTH + 10))
eval "$(xdotool getwindowgeometry --shell "$free")"
right=$((X + WIDTH - 40))
xdotool mousemove "$left" $((Y + HEIGHT / 4)) sleep 0.2 mousedown 1 sleep 0.2 \
    mousemove $(((left + right) / 2)) $((Y + HEIGHT / 2)) sleep 0.2 \
    mousemove "$right" $((Y + HEIGHT * 3 / 4)) sleep 0.2 mouseup 1 sleep 0.8
shot 03-free-plot-zoomed
crop 03-free-plot-zoomed "$free" 03-free
check differs 02-free 03-free "a dragged box zooms the free plot"

check kill -0 "$gallery_pid" "the gallery still runs"
grep -q "canvas: chart held" "$out/gallery.log"
check test $? -eq 0 "the canvas in the dialog holds its chart"

finish
