#!/bin/sh
# Builds the fuzz tests under the sanitizers and feeds them: bench/fuzz.py says how it is called.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
cd "$root"
cmake --preset native-sanitized >/dev/null
cmake --build --preset native-sanitized --target fuzz_tests >/dev/null
exec python3 bench/fuzz.py build/native-sanitized/bin/fuzz_tests "$@"
