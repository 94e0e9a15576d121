#!/bin/sh
# Prints the unknown words of the files named and fails when there are any. Words that are right in
# this project alone stand in .wordhawk-words, one a line; lines that begin with "#" are notes.
#
#   check-spelling.sh README.md docs/*.md
#
# WORDHAWK_LOCALE chooses the language, 1033 (English, United States) by default.
# Exit status: 0 no unknown word, 1 some, 2 an error.
set -eu
[ $# -gt 0 ] || exit 0
top=$(git rev-parse --show-toplevel 2>/dev/null || pwd)
words=$top/.wordhawk-words
locale=${WORDHAWK_LOCALE:-1033}

# A data folder for this run: nobody's own words make a check pass here that fails elsewhere.
data=$(mktemp -d)
trap 'rm -rf "$data"' EXIT
trap 'exit 2' INT TERM
if [ -f "$words" ]; then
    # Through a file and not the command line, which a long list would not fit on.
    grep -v -e '^#' -e '^[[:space:]]*$' "$words" >"$data/project.dic" || true
    if [ -s "$data/project.dic" ]; then
        wordhawk-cli --data "$data" --locale "$locale" import "$data/project.dic" >/dev/null
        wordhawk-cli --data "$data" --locale "$locale" dictionaries --activate project.dic >/dev/null
    fi
fi
wordhawk-cli --data "$data" --locale "$locale" check "$@"
