#!/usr/bin/env bash
# Measures what the program costs against the least that the platform must do: ./bench.sh [GROUP...],
# all groups when none is named. One table, and the same in build/bench.json. Nothing here passes or
# fails.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh
. scripts/desktop.sh

groups=("$@")
[ $# -gt 0 ] || groups=(memory catalogue payload older keystroke pages start)

need_packages "${kBuildPackages[@]}" "${kRunPackages[@]}"
cmake --preset release >/dev/null
cmake --build --preset release --target Tessaline bench bare_windows
trap 'stop_desktop; rm -rf build/bench-scratch' EXIT
start_display
use_prefix "$PWD/build/wine-bench"
rm -rf build/bench-scratch
mkdir build/bench-scratch

rows=build/bench.tsv
: >$rows
# Each group in a process of its own, so that none finds the heap as another left it.
for group in "${groups[@]}"; do
  wine build/release/bench.exe "$group" "Z:$PWD/build/bench-scratch" >>$rows 2>build/bench.log ||
    { echo "The group $group failed." >&2; exit 1; }
done
stat -c %s build/release/Tessaline.exe |
  awk '{ mb = $1 / 1048576; printf "size of Tessaline.exe\t%.4g\tnull\tMB\t%.3f\t1.5\n", mb, mb }' >>$rows

# Windows programs end their lines in two characters.
sed -i 's/\r$//' $rows
awk -F'\t' 'BEGIN { format = "%-38s %9s %9s %4s %7s %6s%s\n"
    printf format, "measure", "ours", "floor", "unit", "value", "aim", "" }
  { printf format, $1, $2, ($3 == "null" ? "-" : $3), $4, $5, $6, ($5 > $6 ? "  missed" : "") }' $rows
awk -F'\t' '{ printf "%s  {\"name\": \"%s\", \"ours\": %s, \"floor\": %s, \"unit\": \"%s\", \"value\": %s, \"aim\": %s}",
    (NR == 1 ? "[\n" : ",\n"), $1, $2, $3, $4, $5, $6 } END { print "\n]" }' $rows >build/bench.json
