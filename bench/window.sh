#!/bin/sh
# Times the main window's work on documents of 1 MB and 10 MB, under Wine on a virtual screen.
#
#   bench/window.sh [MEGABYTES...]
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
cd "$root"
. cmake/install-packages.sh
. cmake/wine.sh

# shellcheck disable=SC2086
install_packages $BUILD_PACKAGES $WORD_LIST_PACKAGES $TEST_PACKAGES
[ $# -gt 0 ] || set -- 1 10
log=$root/build/window-bench.log
mkdir -p "$root/build"
trap stop_display EXIT
trap 'exit 130' INT TERM
{
    cmake --preset windows -DWORDHAWK_BENCHMARKS=ON &&
        cmake --build --preset windows --target window_bench &&
        start_display &&
        prepare_wine N
} >"$log" 2>&1 </dev/null || {
    tail -n 40 "$log" >&2
    exit 2
}
for size in "$@"; do
    echo "== $size MB, the system's rich text box alone"
    wine build/windows/bin/window_bench.exe "$size" bare
    echo "== $size MB"
    wine build/windows/bin/window_bench.exe "$size"
done
