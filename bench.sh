#!/usr/bin/env bash
# Measures what the program costs against the least that the platform must do: one table, and the same
# in build/bench.json. Nothing here passes or fails.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh
. scripts/desktop.sh

need_packages "${kBuildPackages[@]}" "${kRunPackages[@]}"
cmake --preset release >/dev/null
cmake --build --preset release --target Tessaline bench bare_windows
trap 'stop_desktop; rm -rf build/bench-scratch' EXIT
start_display
use_prefix "$PWD/build/wine-bench"
rm -rf build/bench-scratch
wine build/release/bench.exe "Z:$PWD/build/bench-scratch" "Z:$PWD/build/release" \
  "Z:$PWD/build/bench.json" >build/bench.log 2>&1 || { cat build/bench.log; exit 1; }
cat build/bench.log
