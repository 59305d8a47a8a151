#!/usr/bin/env bash
# Builds what a release consists of into build/dist and lists it: the zip, the installer, the
# notices, the bill of materials and the sums. With --twice it builds two copies of the sources in
# other folders, one after the other, and compares every byte.
#
# To sign, set TESSALINE_SIGN to a command that signs the file that it is given last.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh
need_packages "${kBuildPackages[@]}" "${kPackagePackages[@]}"
# What could show in the files besides the sources.
export LC_ALL=C.UTF-8 TZ=UTC
umask 022

# Another account's checkout is read as well; nothing of its configuration runs here.
git_says() { git -c safe.directory='*' "$@" 2>/dev/null; }

number=$(sed -n 's/^project(Tessaline VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
# A copy made by --twice is told both, because it has no history.
if [ -z "${TESSALINE_NAME:-}" ]; then
  TESSALINE_NAME=$number
  if ! changes=$(git_says status --porcelain); then
    TESSALINE_NAME=$number-unknown
    echo "There is no history here, so nobody knows which state of the sources this is."
  elif [ -n "$changes" ]; then
    TESSALINE_NAME=$number-modified
    echo "The sources differ from the last commit, so this is called $TESSALINE_NAME."
  fi
  SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git_says log -1 --format=%ct || echo 1767225600)}
fi
export TESSALINE_NAME SOURCE_DATE_EPOCH

list_release() {
  (cd build/dist && for file in *; do
    printf '%10d  %s  %s\n' "$(stat -c %s "$file")" "$(sha256sum <"$file" | cut -c 1-64)" "$file"
  done)
}

if [ "${1:-}" = --twice ]; then
  rm -rf build/twice build/dist
  mkdir -p build/twice
  later=
  # A folder that changes meanwhile, as build does, is no error.
  tar --exclude=./build --exclude=./.git -cf build/twice/sources.tar . || [ $? -eq 1 ]
  # The second folder's name has another length and a blank, and its user other habits.
  for copy in build/twice/one "build/twice/the other one"; do
    mkdir -p "$copy"
    # The files of the second are of another time.
    tar -xf build/twice/sources.tar -C "$copy" $later
    later=--touch
    echo "Building in $copy"
    (umask 077 && "$copy/package.sh" >"$copy.log" 2>&1) || { cat "$copy.log"; exit 1; }
  done
  diff -r "build/twice/one/build/dist" "build/twice/the other one/build/dist"
  cp -r build/twice/one/build/dist build/dist
  list_release
  echo "Both builds are the same, byte for byte."
  exit
fi

work=$PWD/build/package
rm -rf "$work" build/dist
mkdir -p "$work/files" "$work/pictures" build/dist
cmake --preset release -B "$work/cmake" -DCMAKE_EXE_LINKER_FLAGS=-Wl,-Map=program.map >/dev/null
cmake --build "$work/cmake" --target Tessaline >"$work/build.log" ||
  { cat "$work/build.log"; exit 1; }
name=Tessaline-$TESSALINE_NAME
zip=build/dist/$name-x64.zip
setup=build/dist/$name-setup.exe

# The place where a certificate would come in: the program before it is packed, the uninstaller
# when makensis has made it, the installer when it is done.
sign() {
  [ -z "${TESSALINE_SIGN:-}" ] || sh -c "$TESSALINE_SIGN \"\$1\"" sign "$1"
}
[ -n "${TESSALINE_SIGN:-}" ] ||
  echo "Nothing is signed: there is no certificate (TESSALINE_SIGN names the command)."

cp "$work/cmake/Tessaline.exe" ui/resources/tessaline.ico "$work/files"
sign "$work/files/Tessaline.exe"
/usr/bin/python3 scripts/package/guide.py docs/guide.md "$work/files/Guide.html" "$TESSALINE_NAME"
notices=$work/files/THIRD-PARTY-NOTICES.txt
/usr/bin/python3 scripts/package/bill.py "$work/cmake" "$name" "$notices" \
  "build/dist/$name.spdx.json"
cp "$notices" build/dist
# From here on nothing gets the time at which it was made.
find "$work/files" -exec touch -d "@$SOURCE_DATE_EPOCH" {} +
/usr/bin/python3 scripts/package/zip.py "$zip" "$name" \
  "$work/files"/{Tessaline.exe,Guide.html,THIRD-PARTY-NOTICES.txt}

# The icon's largest picture on a ground of its colours. The page shows 164 x 314 at 96 DPI.
for dpi in 96 120 144 192; do
  width=$((164 * dpi / 96)) height=$((314 * dpi / 96)) icon=$((96 * dpi / 96))
  /usr/bin/convert -size "${width}x$height" gradient:'#ffffff-#a9cbdc' \
    \( 'ui/resources/tessaline.ico[5]' -filter Lanczos -resize "${icon}x$icon" \) \
    -gravity north -geometry "+0+$((64 * dpi / 96))" -composite -alpha off -type TrueColor \
    "BMP3:$work/pictures/wizard-$dpi.bmp"
done
# The same on every file system.
bytes=$(cat "$work/files"/{Tessaline.exe,Guide.html,THIRD-PARTY-NOTICES.txt} | wc -c)
kilobytes=$(((bytes + 1023) / 1024))
makensis -V2 -WX -DNAME="$TESSALINE_NAME" -DNUMBER="$number" -DFILES="$work/files" \
  -DPICTURES="$work/pictures" -DKILOBYTES="$kilobytes" -DOUTPUT="$PWD/$setup" \
  ${TESSALINE_SIGN:+-DSIGN="$TESSALINE_SIGN"} scripts/package/setup.nsi
sign "$setup"
(cd build/dist && sha256sum -- *.zip *.exe *.txt *.json >SHA256SUMS)
list_release
