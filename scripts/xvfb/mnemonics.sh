#!/usr/bin/env bash
# Works the standard controls of the gallery from the keyboard alone on a virtual X display,
# with real X events: Alt+letter ticks the check box its label names, a label's letter leads
# to its edit, which takes typing, and the method combo opens with Alt+Down, takes a typed
# letter and closes with Enter, then opens with F4 and closes with Escape. Then, in the
# multiple-document frame, a plot maximised by its caption button puts its controls on the
# frame's menu bar and its name in the frame's title, and the bar's restore button gives it
# back. Saves a screenshot after each step into the folder given and checks what it can.
#
#   scripts/xvfb/mnemonics.sh <screenshot folder> [path to the gallery]
set -euo pipefail

out=${1:?usage: mnemonics.sh <screenshot folder> [gallery]}
here=$(cd "$(dirname "$0")/../.." && pwd)
gallery=${2:-$here/build/apps/gallery/gallery}

source "$(dirname "$0")/common.sh"
start_display :85 1280x800
start_gallery --page 30-standard-controls
window=$(xdotool search --sync --onlyvisible --name "Standard controls" | head -1)
sleep 1

place() { report_point "$1" "$window"; }
# No window manager runs here: the dialog gets the keyboard by hand, right before the keys.
key() { xdotool windowfocus --sync "$window" sleep 0.2 key --delay 150 "$@"; sleep 0.5; }
around() { # name, width, height: a region centred on a reported point
    local x y
    read -r x y < <(place "$1")
    echo "$2x$3+$((x - $2 / 2))+$((y - $3 / 2))"
}
windows_now() { xdotool search --onlyvisible --name "" 2>/dev/null | wc -l; }

shot 01-shown

key alt+k # "Unchec&ked box"
shot 02-alt-k
changed=$(pixels_changed 01-shown 02-alt-k "$(around unchecked-box 12 12)")
verdict $((changed > 4)) "Alt+K ticked the box its label names ($changed pixels changed)"

key alt+n # "&Name:" hands the focus to the name's edit, its text selected
xdotool windowfocus --sync "$window" sleep 0.2 type --delay 60 "Spillway"
sleep 0.5
shot 03-alt-n-typed
changed=$(pixels_changed 02-alt-k 03-alt-n-typed "$(around name-edit 80 12)")
verdict $((changed > 50)) "Alt+N led to the name's edit, which took the typing ($changed pixels)"

before=$(windows_now)
key alt+m alt+Down # "&Method:" leads to the combo; Alt+Down opens its list
shot 04-list-open
after=$(windows_now)
verdict $((after > before)) "Alt+M then Alt+Down opened the method list ($before -> $after windows)"

key d Return # the next method beginning with "d" after "Energy balance"
shot 05-chosen
after_close=$(windows_now)
verdict $((after_close == before)) "Enter closed the list"
changed=$(pixels_changed 04-list-open 05-chosen "$(around method-arrow 200 12)")
verdict $((changed > 50)) "the typed letter chose another method ($changed pixels changed)"

key F4
shot 06-f4-open
verdict $(($(windows_now) > before)) "F4 opened the list again"
key Escape
shot 07-escaped
verdict $(($(windows_now) == before)) "Escape closed it"
changed=$(pixels_changed 05-chosen 07-escaped "$(around method-arrow 200 12)")
verdict $((changed < 20)) "Escape kept the chosen method ($changed pixels changed)"

# The multiple-document frame, worked by the mouse.
kill "$gallery_pid" 2>/dev/null || true
wait "$gallery_pid" 2>/dev/null || true
start_gallery --page 32-mdi-frame
window=$(xdotool search --sync --onlyvisible --name "ORVAUtil Plots" | head -1)
sleep 1
click() { xdotool mousemove $(place "$1") sleep 0.3 click 1 sleep 0.8; }

shot 08-frame
click plot-maximize
shot 09-maximized
expect "the frame's title names the maximised plot" "$(xdotool getwindowname "$window")" \
    "ORVAUtil Plots - [Bending moment]"
click bar-restore
shot 10-restored
expect "the bar's restore button gave the plot back its place" \
    "$(xdotool getwindowname "$window")" "ORVAUtil Plots"
changed=$(pixels_changed 08-frame 10-restored "600x420+30+70")
verdict $((changed < 50)) "the frame looks as before ($changed pixels changed)"

finish
