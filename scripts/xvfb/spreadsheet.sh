#!/usr/bin/env bash
# The typed spreadsheet on a real X display, driven by real X events: in the gallery's culvert
# table it types a number into a diameter, picks a material from the dropped list, picks a day
# in an inspection date's calendar, ticks a "surveyed" box and presses a "Details" button,
# saving a screenshot after each step. It checks each change twice: in what the application
# heard, which the gallery prints, and in the pixels of the cell.
#
# usage: scripts/xvfb/spreadsheet.sh <screenshot folder> [gallery binary]

set -euo pipefail

out=${1:?usage: spreadsheet.sh <screenshot folder> [gallery binary]}
here=$(cd "$(dirname "$0")/../.." && pwd)
gallery=${2:-$here/build/apps/gallery/gallery}

source "$(dirname "$0")/common.sh"
start_display :86 1280x800
start_gallery --page 45-spreadsheet
window=$(xdotool search --sync --onlyvisible --name "Culverts of reach 3" | head -1)
sleep 1

place() { report_point "$1" "$window"; }
# The pointer arrives before the button goes down, as a user's hand does; the click itself is
# instant, so that its release may reach the application together with its press.
click_at() {
    xdotool mousemove "$1" "$2"
    sleep 0.3
    xdotool click 1
    sleep 0.8
}
# Whether the application heard this line within 10 s; the gallery prints each as it hears it.
# Waiting for it also keeps the next step from overtaking a busy display.
heard() {
    for _ in $(seq 50); do
        grep -qxF "spreadsheet: $1" "$out/gallery.log" && { echo 1; return; }
        sleep 0.2
    done
    echo 0
}
region() { echo "$3x$4+$(($1 - $3 / 2))+$(($2 - $4 / 2))"; } # around a point: x y w h

shot 01-shown

read -r x y < <(place diameter-cell)
click_at "$x" "$y"
# No window manager runs here: the window gets the keyboard by hand, right before the keys.
xdotool windowfocus --sync "$window" sleep 0.2 type --delay 80 "1.35"
xdotool key Return
sleep 0.5
shot 02-number
verdict "$(heard "C-6 Diameter: 1.35")" "the typed diameter is taken as 1.35"
n=$(pixels_changed 01-shown 02-number "$(region "$x" "$y" 50 14)")
verdict $((n > 20)) "the diameter cell shows the new number ($n pixels changed)"

read -r ax ay < <(place material-arrow)
click_at "$ax" "$ay"
shot 03-list-dropped
read -r ix iy < <(place material-hdpe)
click_at "$ix" "$iy"
shot 04-option-picked
verdict "$(heard "C-6 Material: HDPE")" "HDPE is picked from the list"
n=$(pixels_changed 02-number 04-option-picked "$(region $((ax - 50)) "$ay" 80 12)")
verdict $((n > 20)) "the material cell shows the option ($n pixels changed)"

read -r dx dy < <(place inspected-arrow)
click_at "$dx" "$dy"
shot 05-calendar-dropped
read -r cx cy < <(place inspected-day-28)
n=$(pixels_changed 04-option-picked 05-calendar-dropped "$(region "$cx" "$cy" 16 10)")
verdict $((n > 10)) "the calendar drops down under the date ($n pixels changed)"
click_at "$cx" "$cy"
# A click on another cell ends the edit, as the focus leaves the picker.
click_at "$x" "$y"
shot 06-date-picked
verdict "$(heard "C-6 Inspected: 7/28/2024")" "the 28th is picked in the calendar"

read -r bx by < <(place surveyed-box)
click_at "$bx" "$by"
shot 07-box-ticked
verdict "$(heard "C-6 surveyed: yes.")" "the box is ticked and the application told"
n=$(pixels_changed 06-date-picked 07-box-ticked "$(region "$bx" "$by" 12 12)")
verdict $((n > 5)) "the box shows its tick ($n pixels changed)"

read -r px py < <(place details-button)
xdotool mousemove "$px" "$py" sleep 0.3 mousedown 1 sleep 0.8
shot 08-button-down
xdotool mouseup 1
sleep 0.8
verdict "$(heard "Details of C-5 asked for.")" "the button press reaches the application"
n=$(pixels_changed 07-box-ticked 08-button-down "$(region "$px" "$py" 40 14)")
verdict $((n > 10)) "the button shows pressed while the mouse is down ($n pixels changed)"

finish
