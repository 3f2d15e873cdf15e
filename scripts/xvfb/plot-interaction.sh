#!/usr/bin/env bash
# Works a plot of the gallery on a virtual X display with real X events: right-clicks the
# water surface profile, chooses "View Values..." from its menu and closes the values dialog,
# then drags a water surface point up. Saves a screenshot after each step into the folder
# given, and checks that the menu, the dialog and the dragged point show.
#
#   scripts/xvfb/plot-interaction.sh <screenshot folder> [gallery binary]
set -euo pipefail

out=${1:?usage: plot-interaction.sh <screenshot folder> [gallery binary]}
here=$(cd "$(dirname "$0")/../.." && pwd)
gallery=${2:-$here/build/apps/gallery/gallery}

source "$(dirname "$0")/common.sh"

wait_for() { # a command, polled until it succeeds or thirty seconds pass
    for _ in $(seq 300); do
        if "$@" >/dev/null 2>&1; then return 0; fi
        sleep 0.1
    done
    echo "plot-interaction.sh: timed out waiting for: $*" >&2
    return 1
}
check() { # condition command..., what it means
    if "${@:1:$#-1}"; then verdict 1 "${*: -1}"; else verdict 0 "${*: -1}"; fi
}
shows_window() { xdotool search --onlyvisible --name "$1" >/dev/null 2>&1; }
differs() { # two shots, a region: true when some pixel of it differs
    [[ $(pixels_changed "$1" "$2" "$3") != 0 ]]
}

start_display :82 1280x900
start_gallery --page 61-plot-interaction
wait_for xdotool search --onlyvisible --name "plot interaction"
frame=$(xdotool search --onlyvisible --name "plot interaction" | head -1)
wait_for grep -q "^at water-target" "$out/gallery.log"
sleep 0.5 # the first frames reach the screen
shot 01-shown

# The plot's menu where the user right-clicks, and its values item.
read -r mx my < <(report_point menu-point "$frame")
read -r vx vy < <(report_point view-values "$frame")
xdotool mousemove "$mx" "$my" sleep 0.2 click 3 sleep 0.5
shot 02-menu
check differs 01-shown 02-menu "200x200+$mx+$my" "the right click opens the plot's menu"
xdotool mousemove "$vx" "$vy" sleep 0.3 click 1
wait_for shows_window "^View Values$"
sleep 0.5
shot 03-values
check shows_window "^View Values$" "\"View Values...\" opens the values dialog"
xdotool key Return sleep 0.5
check wait_for test -z "$(xdotool search --onlyvisible --name '^View Values$' 2>/dev/null)" \
    "OK closes the values dialog"
shot 04-values-closed

# A water surface point dragged up, in steps as a hand moves.
read -r px py < <(report_point water-point "$frame")
read -r tx ty < <(report_point water-target "$frame")
xdotool mousemove "$px" "$py" sleep 0.2 mousedown 1 sleep 0.2
for step in 1 2 3 4 5 6; do
    xdotool mousemove "$px" $((py + (ty - py) * step / 6)) sleep 0.1
done
xdotool mouseup 1 sleep 0.5
shot 05-dragged
check differs 04-values-closed 05-dragged "40x$((py - ty + 40))+$((px - 20))+$((ty - 20))" \
    "the dragged point shows at its new place"
check grep -q "water surface at point 9 now 102.5" "$out/gallery.log" \
    "the plot heard the drag end at the new level"

check kill -0 "$gallery_pid" "the gallery still runs"
finish
