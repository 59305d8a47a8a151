#!/usr/bin/env bash
# Makes the pictures of the README and the guide from those of the tour: scripts/pictures.sh TOUR
# FOLDER. Few colours keep them small; they are not dithered, because that shows.
set -euo pipefail
tour=$1 folder=$2
while read -r name picture; do
  /usr/bin/convert "$tour/$picture.png" +dither -colors 256 -strip \
    -define png:compression-level=9 "PNG8:$folder/$name.png"
done <<'PICTURES'
form windows/07-form
item windows/03-item-dialog
services windows/04-items
marked windows/06-wrong-field-marked
check windows/07-check-estimate
preview windows/08-preview-page-1
page printed-1
lookup windows/15-patient-lookup
open windows/19-open-search
about windows/23-about
PICTURES
du -cb "$folder"/*.png | tail -n 1
