#!/usr/bin/env bash
# Plays the stories of tests/data/disk_stories on disks that are full, read-only or out of order:
# tests/disk_test.sh TESTS.EXE FOLDER. A disk of two pages needs root.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
program=$1 folder=$2
played=0

leave() {
  if mountpoint -q "$folder"; then umount "$folder"; fi
  rm -rf "$folder"
}

play() {
  TESSALINE_STORIES="Z:$here/data/disk_stories" TESSALINE_FOLDER="Z:$folder" \
    "$here/run_under_wine.sh" "$program" "--source-file=*/$1.txt"
  played=$((played + 1))
}

leave
mkdir -p "$folder/NORVAK/Tessaline/Estimates"
trap leave EXIT
ln -s /dev/full "$folder/NORVAK/Tessaline/Estimates/GFE-1.gfe"
play device

leave
mkdir -p "$folder"
if mount -t tmpfs -o size=8k tessaline "$folder" 2>/dev/null; then
  head -c 4096 /dev/zero >"$folder/rest"
  play full
  mount -o remount,ro "$folder"
  play read-only
else
  echo "Skipped: no disk of two pages can be made here (not root?)."
fi
echo "$played disks"
