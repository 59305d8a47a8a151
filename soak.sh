#!/usr/bin/env bash
# The long versions of the tests of faults, one after another with a summary of each: every
# allocation fails once, 20,000 random actions and 10,000 damaged files with each of three new seeds,
# 200 sudden deaths, bad disks. ./soak.sh [PART...] runs only those of: allocations actions files
# deaths disks. What a part says stays in build/soak.
set -uo pipefail
known='allocations actions files deaths disks'
parts=${*:-$known}
for name in $parts; do
  [[ " $known " == *" $name "* ]] || { echo "Unknown part $name. Parts: $known" >&2; exit 2; }
done
cd "$(dirname "$0")"
. scripts/packages.sh
. scripts/desktop.sh

need_packages "${kBuildPackages[@]}" "${kRunPackages[@]}" "${kTestPackages[@]}"
cmake --preset checks >/dev/null && cmake --build --preset checks --target tessaline_tests || exit 1
trap stop_desktop EXIT
start_display
use_prefix "$PWD/build/wine-soak"
export TZ=CST6CDT TESSALINE_SOAK=1 TESSALINE_ACTIONS=${TESSALINE_ACTIONS:-20000}
export TESSALINE_ROUNDS=${TESSALINE_ROUNDS:-10000}
mkdir -p build/soak
program=build/checks/tests/tessaline_tests.exe
failed=0

# A part's name, the lines of its output that are its figures, and its command.
part() {
  local name=$1 figures=$2 log=build/soak/$1${TESSALINE_SEED:+-$TESSALINE_SEED}.log start=$SECONDS outcome=passed
  shift 2
  [[ " $parts " == *" $name "* ]] || return 0
  "$@" >"$log" 2>&1 || { outcome="failed: see $log"; failed=1; }
  tr -d '\r' <"$log" | grep -E "$figures"
  echo "== $name: $((SECONDS - start)) seconds, $outcome"
}

tests() { tests/run_under_wine.sh "$program" "--source-file=*$1"; }

part allocations 'allocations failed$' tests allocation_test.cpp
# The ordinary tests always play the same seed.
for seed in ${TESSALINE_SEED:-$RANDOM $RANDOM $RANDOM}; do
  TESSALINE_SEED=$seed part actions '^TESSALINE_SEED|print jobs$' tests random_user_test.cpp
  TESSALINE_SEED=$seed part files '^TESSALINE_SEED' tests catalogue_test.cpp
done
part deaths ' kills, ' \
  tests/sudden_death_test.sh "$program" "$PWD/build/soak/deaths" "${TESSALINE_KILLS:-200}"
part disks '^Skipped|disks$' tests/disk_test.sh "$program" "$PWD/build/soak/disks"
exit $failed
