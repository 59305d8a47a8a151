#!/usr/bin/env bash
# Builds everything with warnings as errors and run-time checks, has clang read every file, and runs
# all tests under Wine on a display of their own. Further arguments go to CTest.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh
. scripts/desktop.sh

need_packages "${kBuildPackages[@]}" "${kRunPackages[@]}" "${kTourPackages[@]}" \
  "${kTestPackages[@]}" "${kPackagePackages[@]}"
# Also what is not added yet.
git -c safe.directory='*' ls-files --cached --others --exclude-standard '*.cpp' '*.h' | xargs clang-format --dry-run -Werror

cmake --preset checks >/dev/null
cmake --build --preset checks

trap stop_desktop EXIT
start_display
use_prefix "$PWD/build/wine-test"
# Away from UTC, mistakes of local time show. Of this name both Wine and the C library make a zone.
export TZ=CST6CDT
ctest --preset checks "$@"
