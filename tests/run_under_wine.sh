#!/usr/bin/env bash
# Runs a Windows test program under Wine and passes only when it says itself, in its closing lines,
# that it ran tests, that these checked something, and that all of them passed: Wine cuts exit codes
# to 8 bits, so a crash can look like success.
set -u
# Output goes to a file, because a pipe stays open for as long as any stray Wine process lives.
log=$(mktemp)
trap 'rm -f "$log"' EXIT
wine "$@" >"$log" 2>&1
code=$?
cat "$log"
[ "$code" -eq 0 ] || { echo "The test program ended with code $code."; exit 1; }
grep -q 'Status: SUCCESS!' "$log" || { echo "The test program ended early."; exit 1; }
grep -qE 'test cases: +[1-9]' "$log" || { echo "The test program ran no test."; exit 1; }
grep -qE 'assertions: +[1-9]' "$log" || { echo "The test program checked nothing."; exit 1; }
