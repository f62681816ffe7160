#!/usr/bin/env bash
# Prints the size of the test tree against the code it tests: non-blank lines
# of C++ that are not // comments, under tests/ against shared/, jobs/,
# plugin/ and tools/ (bench/ and fuzz/ are neither).
set -euo pipefail
cd "$(dirname "$0")/.."

count() {
    git ls-files '*.cpp' '*.h' | grep -E "$1" | xargs -r cat | grep -c -v -E '^\s*(//.*)?$' || true
}
tests=$(count '^tests?/')
code=$(count '^(shared|jobs|plugin|tools)/')
awk -v t="$tests" -v c="$code" \
    'BEGIN { printf "test/code ratio: %.2f (%d test lines, %d code lines)\n", t / c, t, c }'
