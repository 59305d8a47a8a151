#!/usr/bin/env bash
# Renders the masters beside this script into ui/resources/. The results are committed, so that
# building the program needs none of these tools; run this after changing a master.
set -euo pipefail

art=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
resources=$art/../resources
# By its full path: "convert" is a common name, and another program may come before it on PATH.
convert=/usr/bin/convert

if ! command -v rsvg-convert >/dev/null || [[ ! -x $convert ]]; then
  root=()
  [[ $(id -u) -eq 0 ]] || root=(sudo)
  "${root[@]}" apt-get update -qq
  "${root[@]}" apt-get install -y -qq --no-install-recommends librsvg2-bin imagemagick
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$resources"

# Every size is drawn from vectors, never scaled down from a larger picture, which would blur it.
images=()
for size in 16 24 32 48 64 256; do
  master=$art/icon-$size.svg
  [[ -f $master ]] || master=$art/icon.svg
  rsvg-convert --width "$size" --height "$size" "$master" --output "$work/$size.png"
  images+=("$work/$size.png")
done
# ICO keeps 256 px as PNG, the others as 32-bit bitmaps with alpha.
"$convert" "${images[@]}" "$resources/tessaline.ico"

# BMP3 has the plain BITMAPINFOHEADER that every resource compiler takes; TrueColor keeps 24 bits
# even for a drawing of so few colours that a palette would do.
rsvg-convert "$art/banner.svg" --output "$work/banner.png"
"$convert" "$work/banner.png" -type TrueColor -compress None "BMP3:$resources/banner.bmp"
