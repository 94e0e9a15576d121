# Read by ./run with ".", after cmake/wine.sh: the window where nobody looks at a screen.
# The caller gives $log and the functions fail and quietly.

# shoot FILE: a picture of the whole screen.
shoot() {
    import -window root "$1"
}

# How many pixels two pictures differ in.
difference() {
    compare -metric AE "$1" "$2" null: 2>&1 || true
}

# settle FILE: waits until the screen is at rest, but for a blinking caret, and leaves its picture.
settle() {
    shoot "$1"
    same=0
    tries=0
    while [ "$same" -lt 3 ] && [ "$tries" -lt 100 ]; do
        sleep 0.3
        mv "$1" "$1.before"
        shoot "$1"
        tries=$((tries + 1))
        same=$((same + 1))
        [ "$(difference "$1.before" "$1")" -lt 100 ] || same=0
    done
    rm -f "$1.before"
}

# wait_for_window NAME: prints the window's number.
wait_for_window() {
    tries=0
    until xdotool search --onlyvisible --name "$1" 2>/dev/null | grep -m 1 .; do
        tries=$((tries + 1))
        [ "$tries" -lt 300 ] && kill -0 "$program_id" 2>/dev/null || return 1
        sleep 0.1
    done
}

program_id=
leave_screen() {
    [ -z "$program_id" ] || kill "$program_id" 2>/dev/null || true
    stop_display
}

# open_window PROGRAM DOCUMENT FOLDER: opens the window on a copy of the document and waits for it to
# be at rest. The copy, the window's data and its $picture are in FOLDER.
open_window() {
    picture=$3/wordhawk.png
    copy=$3/$(basename "$2")
    case $copy in
        *.txt | *.rtf) ;;
        # The window takes files by these names only.
        *) copy=$copy.txt ;;
    esac
    rm -rf "$3"
    mkdir -p "$3/data"
    cp "$2" "$copy"
    printf '[Settings]\r\nSaveBack=1\r\nWideSearch=1\r\n' >"$3/data/Wordhawk.ini"
    WORDHAWK_DATA=$(windows_path "$3/data")
    export WORDHAWK_DATA

    trap leave_screen EXIT
    trap 'exit 130' INT TERM
    quietly "Starting a virtual screen" start_display 1024x768x24
    quietly "Preparing Wine" prepare_wine N
    echo "== wine $1 $copy" >&2
    wine "$1" "$(windows_path "$copy")" >"$log" 2>&1 </dev/null &
    program_id=$!
    window=$(wait_for_window " - Wordhawk") || fail "The window did not come up (output: $log)"
    xdotool windowfocus --sync "$window" || true
    settle "$picture"
}

# Closes what is open, boxes first, which also saves the copy.
close_window() {
    tries=0
    while kill -0 "$program_id" 2>/dev/null; do
        [ "$tries" -lt 100 ] || fail "The window did not close (picture: $picture)"
        [ $((tries % 20)) -ne 0 ] || xdotool key Escape
        tries=$((tries + 1))
        sleep 0.1
    done
    program_id=
    echo "Picture of the window: $picture"
}

# show_document PROGRAM DOCUMENT FOLDER: prints the path of a picture of the window.
show_document() {
    open_window "$@"
    close_window
}

# show_correction PROGRAM DOCUMENT FOLDER NAMES: as show_document, after ignoring so many words and
# changing the first word then that has a suggestion.
show_correction() {
    open_window "$@"
    names=$4
    while [ "$names" -gt 0 ]; do
        xdotool key alt+g
        settle "$picture"
        names=$((names - 1))
    done
    presses=0
    while :; do
        cp "$picture" "$picture.start"
        xdotool key Return
        settle "$picture"
        changed=$(difference "$picture.start" "$picture")
        rm -f "$picture.start"
        presses=$((presses + 1))
        # Enter does nothing for a word without suggestions; Alt+G ignores all of it.
        if [ "$changed" -ge 100 ] || [ "$presses" -ge 30 ]; then break; fi
        xdotool key alt+g
        settle "$picture"
    done
    close_window
    ! cmp -s "$2" "$copy" || fail "The correction did not reach $copy"
    echo "== Corrected one word in $copy" >&2
}
