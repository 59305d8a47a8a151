#!/usr/bin/env bash
# Takes the tour with the real program and looks at what came out of the printer:
# tests/tour_test.sh TESSALINE.EXE FOLDER.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
program=$1 folder=$2
"$here/../scripts/tour.sh" "$program" "$folder"

[ -e "$folder/estimate.pdf" ] || { echo "Nothing was printed."; exit 1; }
pages=$(pdfinfo "$folder/estimate.pdf" | sed -n 's/^Pages: *//p')
[ "$pages" = 2 ] || { echo "Printed $pages pages instead of 2."; exit 1; }
pdftotext -layout "$folder/estimate.pdf" "$folder/estimate.txt"

expect() {
  grep -qF -- "$1" "$folder/estimate.txt" || { echo "The printed estimate lacks: $1"; exit 1; }
}

expect 'GOOD FAITH ESTIMATE'
expect 'Ann Marie Lee-Svensson'
expect '$12943.50'
expect 'Prairie Orthopedic & Sports Clinic'
expect 'Additional expected items/services continue on page 2.'
expect 'www.cms.gov/nosurprises or call 1-800-985-3059.'
expect 'ADDITIONAL INFORMATION'
expect 'Capital Anesthesia Group gives its own estimate'

# Grey tones only, but for the slightly bluish body and muted texts: nowhere may a pixel be colourful.
for page in "$folder"/printed-*.png; do
  saturation=$(/usr/bin/convert "$page" -colorspace HCL -channel G -separate -format '%[fx:maxima]' info:)
  awk -v s="$saturation" 'BEGIN { exit !(s < 0.20) }' || {
    echo "$page is colourful: $saturation"
    exit 1
  }
done
