# Read by ./run, ./test and ./package with ".": installs the Debian packages that are missing.
# Everything goes to standard error, so that the scripts' own output stays clean.

# Lists those of its arguments that are not installed.
missing_packages() {
    for package in "$@"; do
        status=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null || true)
        [ "$status" = installed ] || printf '%s ' "$package"
    done
}

# install_packages PACKAGE...: silent when nothing is missing; ends the script when it cannot help.
install_packages() {
    if ! command -v dpkg-query >/dev/null; then
        echo "This script installs what it needs with apt, on Debian 12. Elsewhere install by hand: $*" >&2
        exit 2
    fi
    missing=$(missing_packages "$@")
    [ -n "$missing" ] || return 0

    as_root=
    if [ "$(id -u)" -ne 0 ]; then
        as_root=sudo
        if ! command -v sudo >/dev/null; then
            echo "Missing packages, and neither root nor sudo to install them: $missing" >&2
            exit 2
        fi
    fi
    echo "== Installing: $missing" >&2
    log=$(mktemp)
    # The names are split on purpose.
    # shellcheck disable=SC2086
    if ! { $as_root apt-get update &&
           $as_root env DEBIAN_FRONTEND=noninteractive \
               apt-get install -y --no-install-recommends $missing; } >"$log" 2>&1 </dev/null
    then
        tail -n 30 "$log" >&2
        echo "The packages could not be installed; the whole log is $log" >&2
        exit 2
    fi
    rm -f "$log"
}

# What every build needs.
BUILD_PACKAGES="cmake ninja-build g++ python3
    libcli11-dev libexpected-dev"
# Sources of the shipped dictionaries (data/sources/README.md).
WORD_LIST_PACKAGES="wamerican-large wbritish-large wngerman wfrench hunspell-es witalian hunspell-it
    wdutch wportuguese wbrazilian wdanish hunspell-sv wpolish
    hunspell hunspell-da hunspell-de-de hunspell-fr hunspell-nl hunspell-pt-br hunspell-pt-pt
    onboard-data wamerican wamerican-small wbritish wbritish-small"
# The cross build of the window, and what it runs with here.
WINDOW_PACKAGES="g++-mingw-w64-x86-64-posix mingw-w64-tools wine wine64 libwine
    fonts-wine fonts-liberation"
# A virtual screen, its keyboard and its camera.
SCREEN_PACKAGES="xvfb xdotool imagemagick"
# What makes the installer, the archive and the .deb.
DELIVERY_PACKAGES="nsis zip dpkg"
# More compilers, and what the tests are run with.
TEST_PACKAGES="$WINDOW_PACKAGES $SCREEN_PACKAGES $DELIVERY_PACKAGES googletest libgtest-dev libgmock-dev clang ccache git
    emacs-nox vim procps parallel"
