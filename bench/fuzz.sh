#!/bin/sh
# Feeds every reader of foreign bytes with random inputs under the sanitizers, and prints how many each
# one took: dictionaries, settings and language files, rich text, documents, the pipe, arguments,
# suggestions. ./test runs short rounds of the same tests.
#
#   bench/fuzz.sh MINUTES [FILTER]     all tests share the minutes; FILTER as GoogleTest has it
#
# A failure prints the input and the seed, and ends the run with status 1.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
cd "$root"
[ $# -ge 1 ] || { echo "usage: bench/fuzz.sh MINUTES [FILTER]" >&2; exit 2; }
minutes=$1
filter=${2:-*}
program=$root/build/native-sanitized/bin/fuzz_tests

cmake --preset native-sanitized >/dev/null
cmake --build --preset native-sanitized --target fuzz_tests >/dev/null

tests=$("$program" --gtest_list_tests --gtest_filter="$filter" |
    awk '/^[^ ]/ { suite = $1 } /^ / { print suite $1 }')
[ -n "$tests" ] || { echo "no such test" >&2; exit 2; }
count=$(echo "$tests" | wc -l)
share=$((minutes * 60 / count))
log=$(mktemp)
trap 'rm -f "$log"' EXIT

for test in $tests; do
    begun=$(date +%s)
    seed=$(od -An -N3 -tu4 /dev/urandom | tr -d ' ')
    batch=20000
    inputs=0
    while :; do
        if ! WORDHAWK_FUZZ_ROUNDS=$batch WORDHAWK_FUZZ_SEED=$seed \
            "$program" --gtest_filter="$test" >"$log" 2>&1; then
            tail -n 60 "$log"
            echo "FAILED: WORDHAWK_FUZZ_ROUNDS=$batch WORDHAWK_FUZZ_SEED=$seed $program --gtest_filter=$test"
            exit 1
        fi
        inputs=$((inputs + batch))
        seed=$((seed + batch))
        seconds=$(($(date +%s) - begun))
        [ "$seconds" -lt "$share" ] || break
    done
    [ "$seconds" -gt 0 ] || seconds=1
    printf '%-75s %11d inputs %8d a second\n' "$test" "$inputs" "$((inputs / seconds))"
done
