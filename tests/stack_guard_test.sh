#!/usr/bin/env bash
# A function that writes past its array ends the process with the status of a broken stack cookie,
# 0xC0000409, of which Wine leaves the last byte; and no two processes have the same cookie:
# tests/stack_guard_test.sh TESTS.EXE.
set -uo pipefail
log=$(mktemp)
trap 'rm -f "$log"' EXIT
for run in 1 2 3; do
  wine "$1" --no-skip '--test-case=A function writes past*' >>"$log" 2>&1
  code=$?
  [ $code -eq 9 ] || { echo "Run $run ended with $code."; cat "$log"; exit 1; }
done
guards=$(grep -oE '^guard [1-9a-f][0-9a-f]{8,11}' "$log" | sort -u | wc -l)
[ "$guards" -eq 3 ] || { echo "Of three cookies, $guards are large and unlike."; cat "$log"; exit 1; }
