#!/usr/bin/env bash
# The date-and-time picker on a real X display, driven by real X events: opens the gallery's
# page of pickers, drops the month calendar down with a click on the button, moves on a month
# with the title's arrow, picks a day, and saves a screenshot after each step. It checks the
# calendar's title bar is on screen while it is open and gone once a day is picked.
#
# usage: scripts/xvfb/date-time.sh <screenshot folder> [gallery binary]

set -euo pipefail

out=${1:?usage: date-time.sh <screenshot folder> [gallery binary]}
here=$(cd "$(dirname "$0")/../.." && pwd)
gallery=${2:-$here/build/apps/gallery/gallery}

source "$(dirname "$0")/common.sh"

# Where things lie, from the top left corner of the dialog window: the first picker's drop-down
# button, then, on its calendar, the title bar, the arrow to the next month and the Wednesday of
# the calendar's third week (13 March 2024 once the calendar shows March).
readonly button_x=334 button_y=49
readonly title_x=250 title_y=72
readonly next_x=348 next_y=78
readonly day_x=252 day_y=152
readonly caption_colour='srgb(10,36,106)'

start_display :98 1024x768
start_gallery --page 33-date-time
window=$(xdotool search --sync --onlyvisible --name "Dates and times" | head -n1)
eval "$(xdotool getwindowgeometry --shell "$window")" # sets X and Y
sleep 1

pixel() { convert "$out/$1.png" -format "%[pixel:p{$((X + $2)),$((Y + $3))}]" info:; }
# The pointer arrives before the button goes down, as a user's hand does: a press with no
# motion before it can reach the window before the display knows the pointer is over it.
click() {
    xdotool mousemove $((X + $1)) $((Y + $2))
    sleep 0.3
    xdotool click 1
    sleep 0.5
}


shot 1-page
click $button_x $button_y
shot 2-calendar-open
expect "the calendar drops down below the picker" "$(pixel 2-calendar-open $title_x $title_y)" \
    "$caption_colour"
click $next_x $next_y
shot 3-next-month
click $day_x $day_y
shot 4-day-picked
if [[ $(pixel 4-day-picked $title_x $title_y) == "$caption_colour" ]]; then
    expect "the calendar closes once a day is picked" open closed
else
    expect "the calendar closes once a day is picked" closed closed
fi

finish
