# Sourced by the scripts here, which drive the gallery on a virtual X display with real X
# events. A script sets `out` (the folder for its screenshots and logs) and `gallery` (the
# program), then:
#
#   start_display :N WxH        Xvfb on display :N, stopped with the gallery when the script exits
#   start_gallery ARGUMENTS...  the gallery in window mode, its report in $out/gallery.log
#   report_point NAME WINDOW    the screen point the gallery's report gives for NAME ("at NAME x y",
#                               relative to WINDOW's corner)
#   shot NAME                   the whole display into $out/NAME.png
#   pixels_changed A B REGION   how many pixels of REGION (WxH+X+Y) differ between two shots
#   verdict PASSED WHAT         prints ok or FAILED (PASSED is 1 or 0) and counts the failures
#   expect WHAT GOT WANTED      a verdict on GOT being WANTED
#   finish                      the summary; the script's status is 1 when a check failed

gallery_pid=
xvfb_pid=
failures=0

stop_display() {
    [[ -n $gallery_pid ]] && kill "$gallery_pid" 2>/dev/null || true
    [[ -n $xvfb_pid ]] && kill "$xvfb_pid" 2>/dev/null || true
}

start_display() { # display, width x height
    mkdir -p "$out"
    Xvfb "$1" -screen 0 "$2x24" -nolisten tcp >"$out/xvfb.log" 2>&1 &
    xvfb_pid=$!
    trap stop_display EXIT
    export DISPLAY=$1
    for _ in $(seq 300); do
        xdpyinfo >/dev/null 2>&1 && return 0
        sleep 0.1
    done
    echo "$(basename "$0"): no X display on $1 after 30 s" >&2
    return 1
}

# The report goes out line by line, so that a script can read a place as soon as it is shown.
start_gallery() {
    stdbuf -oL "$gallery" --window --out "$out/gallery" "$@" >"$out/gallery.log" 2>&1 &
    gallery_pid=$!
}

report_point() { # name, window
    local x y X Y
    read -r x y < <(awk -v n="$1" '$1 == "at" && $2 == n { print $3, $4 }' "$out/gallery.log")
    [[ -n $x ]] || { echo "no place \"$1\" in the gallery's report" >&2; exit 1; }
    eval "$(xdotool getwindowgeometry --shell "$2")"
    echo "$((X + x)) $((Y + y))"
}

shot() { import -window root "$out/$1.png"; echo "$out/$1.png"; }

pixels_changed() { # shot, shot, region
    convert "$out/$1.png" -crop "$3" +repage "$out/crop-a.png"
    convert "$out/$2.png" -crop "$3" +repage "$out/crop-b.png"
    local count
    count=$(compare -metric AE "$out/crop-a.png" "$out/crop-b.png" null: 2>&1 || true)
    echo "${count%% *}"
}

verdict() { # passed (1 or 0), what it means
    if [[ $1 == 1 ]]; then echo "ok: $2"; else
        echo "FAILED: $2"
        failures=$((failures + 1))
    fi
}

expect() { # what, got, wanted
    if [[ $2 == "$3" ]]; then verdict 1 "$1"; else verdict 0 "$1 (found $2, wanted $3)"; fi
}

finish() {
    echo "$failures failure(s); screenshots in $out"
    exit $((failures > 0))
}
