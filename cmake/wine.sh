# Read by ./run and ./test with ".": a screen and a Wine prefix for the Windows programs.
# The caller sets $root, the project's folder.

# Never the user's own prefix.
export WINEPREFIX="$root/build/wine" WINEDEBUG="${WINEDEBUG:--all}"
# No offers to install what none of our programs needs.
export WINEDLLOVERRIDES="mscoree=;mshtml="

display_server=

# start_display [GEOMETRY]: a screen of our own, on a display number that the server picks.
start_display() {
    mkdir -p "$root/build"
    number=$(mktemp "$root/build/display.XXXXXX")
    Xvfb -displayfd 3 -screen 0 "${1:-1280x1024x24}" -nolisten tcp 3>"$number" 2>/dev/null &
    display_server=$!
    tries=0
    while [ ! -s "$number" ]; do
        tries=$((tries + 1))
        [ "$tries" -lt 100 ] || break
        sleep 0.1
    done
    DISPLAY=:$(cat "$number")
    export DISPLAY
    rm -f "$number"
    [ "$DISPLAY" != : ]
}

stop_display() {
    [ -n "$display_server" ] || return 0
    # Wine's own helpers end soon after the last program; the screen goes after them.
    timeout 10 wineserver -w || true
    kill "$display_server" 2>/dev/null || true
    display_server=
}

# set_value KEY NAME TYPE VALUE: in the user's part of the prefix's registry.
set_value() {
    wine reg add "HKCU\\$1" /v "$2" /t "$3" /d "$4" /f
}

# prepare_wine MANAGED: makes the prefix, with the looks of today's Windows. MANAGED is Y where a window
# manager takes care of windows, and N on a bare screen, where Wine would wait for one at every window.
# Silent and quick once that is done.
prepare_wine() {
    done_before=$(cat "$WINEPREFIX/wordhawk-managed" 2>/dev/null || true)
    if [ -z "$done_before" ]; then
        # Any first program makes the prefix. Asking for that by name (wineboot -i) would leave two copies of
        # services.exe running: a class that is asked for through one and answered by the other never starts.
        themes='Software\Microsoft\Windows\CurrentVersion\ThemeManager'
        set_value "$themes" DllName REG_EXPAND_SZ 'C:\windows\resources\themes\light\light.msstyles' &&
            set_value "$themes" ThemeActive REG_SZ 1 &&
            set_value "$themes" ColorName REG_SZ Blue &&
            set_value "$themes" SizeName REG_SZ NormalSize &&
            # Debian's Wine does not find its own symbols.
            ln -sf /usr/share/wine/fonts/marlett.ttf "$WINEPREFIX/drive_c/windows/Fonts/" ||
            return 1
    fi
    if [ "$done_before" != "$1" ]; then
        set_value 'Software\Wine\X11 Driver' Managed REG_SZ "$1" || return 1
        echo "$1" >"$WINEPREFIX/wordhawk-managed"
    fi
}

# windows_path PATH: as Windows programs name an absolute path of ours.
windows_path() {
    printf 'Z:%s' "$1" | tr / '\\'
}
