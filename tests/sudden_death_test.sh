#!/usr/bin/env bash
# Kills a program that saves one estimate after another, at random moments, and has the next one
# load every file but the one that was being written:
# tests/sudden_death_test.sh TESTS.EXE FOLDER [KILLS].
set -euo pipefail
program=$1 folder=$2 kills=${3:-5}
export TESSALINE_FOLDER="Z:$folder" TESSALINE_SOAK=1
saving=$folder/NORVAK/Tessaline/saving

save_on() {
  exec wine "$program" --no-skip '--test-case=What was saved before*' >"$folder/log" 2>&1
}

fail() {
  echo "$1"
  cat "$folder/log"
  exit 1
}

rm -rf "$folder"
mkdir -p "$folder/NORVAK/Tessaline"
trap 'rm -rf "$folder"' EXIT
for ((kill = 1; kill <= kills; kill++)); do
  touch "$folder/started"
  save_on &
  pid=$!
  # It saves as soon as it has looked at what the one before has left.
  until [ "$saving" -nt "$folder/started" ]; do
    kill -0 "$pid" 2>/dev/null || fail "The program ended by itself."
    sleep 0.02
  done
  sleep "0.$((RANDOM % 900 + 100))"
  kill -9 "$pid" 2>/dev/null || fail "The program ended by itself."
  wait "$pid" 2>/dev/null || true
  cat "$folder/log" >>"$folder/logs"
done
(export TESSALINE_LAST=1 && save_on) || fail "Not every file loads."
cat "$folder/log" >>"$folder/logs"
figures='/loaded, / { loaded += $1; torn += $3 } END { print loaded, "files loaded,", torn, "torn" }'
echo "$kills kills, $(awk "$figures" "$folder/logs")"
