#!/usr/bin/env bash
# Measures what the program costs against the least that the platform must do:
# ./bench.sh [GROUP...], all groups when none is named. One table, and the same in build/bench.json.
# A value is the median of many rounds, the spread that of their middle half. Nothing here passes or
# fails.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh
. scripts/desktop.sh

groups=("$@")
[ $# -gt 0 ] || groups=(catalogue file lookup form start)

need_packages "${kBuildPackages[@]}" "${kRunPackages[@]}"
cmake --preset release >/dev/null
cmake --build --preset release --target Tessaline bench bare_windows
trap 'stop_desktop; rm -rf build/bench-scratch' EXIT
start_display
use_prefix "$PWD/build/wine-bench"

rows=build/bench.tsv
: >$rows
# Each group in a process of its own, so that none finds the heap as another left it.
for group in "${groups[@]}"; do
  rm -rf build/bench-scratch
  mkdir build/bench-scratch
  wine build/release/bench.exe "$group" "Z:$PWD/build/bench-scratch" >>$rows 2>build/bench.log ||
    { echo "The group $group failed." >&2; exit 1; }
done
stat -c %s build/release/Tessaline.exe |
  awk '{ mb = $1 / 1048576; printf "size of Tessaline.exe\t%.4g\tnull\tMB\t%.3f\t0\t1.5\n", mb, mb }' >>$rows

# Windows programs end their lines in two characters. No aim is 0.
sed -i -e 's/\r$//' -e 's/\t0$/\tnull/' $rows
awk -F'\t' 'BEGIN { format = "%-42s %9s %9s %4s %7s %7s %6s%s\n"
    printf format, "measure", "ours", "floor", "unit", "value", "spread", "aim", "" }
  { gsub("null", "-"); printf format, $1, $2, $3, $4, $5, $6, $7,
      ($7 != "-" && $5 > $7 ? "  missed" : "") }' $rows
awk -F'\t' '{ printf "%s  {\"name\": \"%s\", \"ours\": %s, \"floor\": %s, \"unit\": \"%s\", \"value\": %s, \"spread\": %s, \"aim\": %s}",
    (NR == 1 ? "[\n" : ",\n"), $1, $2, $3, $4, $5, $6, $7 } END { print "\n]" }' $rows >build/bench.json
