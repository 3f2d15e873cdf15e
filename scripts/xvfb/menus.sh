#!/usr/bin/env bash
# Drives the gallery's multiple-document frame on a virtual X display with real X events:
# opens the Window menu of the menu bar and chooses Tile, opens the plot's right-click menu and
# chooses "Frame Plot", then activates the other document with a click on its caption. Saves a
# screenshot after each step into the folder given, and checks the caption colours.
#
#   scripts/xvfb/menus.sh <screenshot folder> [gallery binary]
set -euo pipefail

out=${1:?usage: menus.sh <screenshot folder> [gallery binary]}
gallery=${2:-build/apps/gallery/gallery}

source "$(dirname "$0")/common.sh"

wait_for() { # a command, polled until it succeeds or thirty seconds pass
    for _ in $(seq 300); do
        if "$@" >/dev/null 2>&1; then return 0; fi
        sleep 0.1
    done
    echo "menus.sh: timed out waiting for: $*" >&2
    return 1
}

start_display :93 1280x1024
start_gallery --page 32
wait_for xdotool search --name "ORVAUtil Plots"
sleep 0.5 # the first frames reach the screen

pixel() { # the colour at a screen point of a screenshot, as #RRGGBB
    convert "$out/$1.png" -crop "1x1+$2+$3" -depth 8 txt:- | grep -o '#[0-9A-F]\{6\}' | head -1
}
click() { xdotool mousemove "$1" "$2" sleep 0.2 click "${3:-1}" sleep 0.4; }


# The gallery cascades its windows from (20, 20): the frame's border is 4 pixels, its caption
# and its menu bar 19 each, so the bar's items lie on y = 52 and the MDI client starts at
# (26, 64), 628 by 430. Tiled, the documents' captions lie on y = 77, the left one's title
# bar clear of text and buttons at x = 200, the right one's at x = 500.
active=#0A246A
inactive=#808080
shot 1-frame

# The Window menu, then Tile: two documents side by side.
click 80 52
shot 2-window-menu
click 90 89
shot 3-tiled
expect "the left document (Bending moment) is active after Tile" "$(pixel 3-tiled 200 77)" "$active"
expect "the right document (Deflection) is inactive" "$(pixel 3-tiled 500 77)" "$inactive"

# The plot's right-click menu over the active document; "Frame Plot" turns the frame off.
click 180 250 3
shot 4-popup-menu
click 220 278
shot 5-frame-off

# A click on the other document's caption activates it.
click 500 77
shot 6-other-active
expect "a click on its caption activates the right document" "$(pixel 6-other-active 500 77)" "$active"
expect "the left document is then inactive" "$(pixel 6-other-active 200 77)" "$inactive"

finish
