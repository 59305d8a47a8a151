#!/usr/bin/env bash
# Builds the release program and opens it under Wine. Without a display it takes the tour instead:
# the real program, driven by real input, pictured in build/tour. With --pictures the tour also
# makes the pictures of the README and the guide again. With --build-only it stops at
# build/release/Tessaline.exe.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh
. scripts/desktop.sh

need_packages "${kBuildPackages[@]}"
cmake --preset release >/dev/null
cmake --build --preset release
if [ "${1:-}" = --build-only ]; then exit; fi

need_packages "${kRunPackages[@]}"
trap stop_desktop EXIT
if [[ "${1:-}" != --tour && "${1:-}" != --pictures ]] && have_display; then
  use_prefix "$PWD/build/wine"
  wine build/release/Tessaline.exe
else
  echo "There is no display here (or the tour was asked for): taking the tour."
  need_packages "${kTourPackages[@]}"
  start_display
  use_prefix "$PWD/build/wine-tour"
  scripts/tour.sh "$PWD/build/release/Tessaline.exe" "$PWD/build/tour"
  [ "${1:-}" != --pictures ] || scripts/pictures.sh build/tour docs/pictures
fi
