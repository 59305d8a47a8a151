#!/usr/bin/env bash
# Drives the real program through a clerk's day with real input and leaves pictures and the printed
# PDF: scripts/tour.sh TESSALINE.EXE TOUR.EXE FOLDER. Needs a display and a Wine prefix.
set -euo pipefail
. "$(dirname "$0")/desktop.sh"
program=$1 driver=$2 folder=$3
data=$(cd "$(dirname "$0")/../tests/data" && pwd)

desktop_pids=()
trap 'for pid in "${desktop_pids[@]}"; do kill "$pid" 2>/dev/null || true; done' EXIT
rm -rf "$folder"
mkdir -p "$folder"
print=no
if start_printer; then print=yes; else echo "No CUPS here: the tour does not print."; fi
touch "$folder/started"

code=0
wine "$driver" "$program" "$folder" "$data" $print >"$folder/tour.log" 2>&1 || code=$?
cat "$folder/tour.log"
for picture in "$folder"/*.bmp; do
  [ -e "$picture" ] || continue
  convert "$picture" "${picture%.bmp}.png"
  rm "$picture"
done
[ $code -eq 0 ] && grep -q '^The tour is over\.' "$folder/tour.log" || exit 1

if [ $print = yes ]; then
  # The job is in the spooler when the program goes on; the file follows a little later.
  for _ in $(seq 100); do
    pdf=$(find ~/PDF -name '*Good_Faith_Estimate*.pdf' -newer "$folder/started" 2>/dev/null | head -n 1)
    [ -n "$pdf" ] && pdfinfo "$pdf" >/dev/null 2>&1 && break
    sleep 0.2
  done
  [ -n "$pdf" ] || { echo "The printed PDF did not appear."; exit 1; }
  mv "$pdf" "$folder/estimate.pdf"
  pdftoppm -r 96 -png "$folder/estimate.pdf" "$folder/printed"
fi
rm "$folder/started"
echo "Pictures are in $folder"
