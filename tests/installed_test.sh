#!/usr/bin/env bash
# Takes a release through its life under Wine: unpacked, installed, used, upgraded, removed. Then
# only the saved estimate is left. tests/installed_test.sh BUILT FOLDER, with a BUILT of package.sh.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/../scripts/desktop.sh"
# Wine names the files of other scripts only so.
export LC_ALL=C.UTF-8
built=$1 folder=$2
profile="$folder/Frau Müller Клиника 診療所"
local_data=$profile/AppData/Local
programs=$profile/Start
installed=$local_data/Programs/Tessaline
estimates=$local_data/NORVAK/Tessaline/Estimates
setup=$(find "$built/dist" -name '*-setup.exe')
tiny=

leave() {
  [ -z "${WINEPREFIX:-}" ] || wineserver -k 2>/dev/null || true
  [ -z "$tiny" ] || { umount "$tiny" 2>/dev/null || true; rm -rf "$tiny"; }
}
trap leave EXIT

fail() {
  echo "Not so: $1"
  import -window root "$folder/lost.png" 2>/dev/null || true
  exit 1
}

# expect CODE WHAT COMMAND...: the program ends with this exit code. Nothing is asked on the way.
expect() {
  local wanted=$1 what=$2 code=0
  shift 2
  timeout 180 wine "$@" >/dev/null 2>&1 || code=$?
  [ "$code" -eq "$wanted" ] || fail "$what ends with $wanted (it was $code)"
}

# until_ WHAT COMMAND...: the command succeeds within two minutes.
until_() {
  local what=$1 deadline=$((SECONDS + 120))
  shift
  until "$@" >/dev/null 2>&1; do
    sleep 0.2
    [ $SECONDS -lt $deadline ] || fail "$what"
  done
}

shows() { xdotool search --onlyvisible --name "$1"; }
hides() { ! shows "$1"; }

start_program() {
  wine "$1" >/dev/null 2>&1 &
  until_ 'the program opens its window' shows '^Tessaline [|]'
}

# Asks it until it hears, since a window that only just opened may not.
close_program() { until_ 'the program ends' close_once; }
close_once() {
  hides '^Tessaline [|]' || { xdotool key alt+F4 && sleep 1 && hides '^Tessaline [|]'; }
}

# A place inside the main window, from its corner.
click() {
  local X Y
  eval "$(xdotool getwindowgeometry --shell "$(shows '^Tessaline [|]' | tail -n 1)" |
    grep -E '^[XY]=[0-9]+$')"
  xdotool mousemove $((X + $1)) $((Y + $2)) click 1
}

# The first name, then Save.
save_an_estimate() {
  click 226 390
  xdotool type --delay 20 Ann
  click 212 232
  sleep 2
  shows '^Saved$'
}

value() { wine reg query "$uninstall_key" /v "$1" 2>/dev/null | tr -d '\r' |
  sed -n "s/^ *$1 *REG_[A-Z]* *//p"; }
is_unlisted() { [ -z "$(value DisplayName)" ]; }
uninstall_key='HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Tessaline'

# All but the temporary files; a folder ends in a stroke.
listing() {
  (cd "$profile" && find . -path ./Temp -prune -o -type d -printf '%p/\n' -o -print) | sort
}
# Without the folders of the shell, which Wine notes down when somebody asks for them.
registry() {
  wine regedit /E "$1" HKEY_CURRENT_USER
  iconv -f UTF-16 -t UTF-8 "$1" | tr -d '\r' | grep -vE '^("(Programs|Desktop)"=|$)' |
    sort >"$1.txt"
}

# package VERSION: an installer of that version with another guide.
package() {
  [ -d "$folder/files" ] || cp -r "$built/package/files" "$folder/files"
  echo "<!-- $1 -->" >>"$folder/files/Guide.html"
  makensis -V1 -DNAME="$1" -DNUMBER="$1" -DFILES="$folder/files" -DKILOBYTES=1 \
    -DPICTURES="$built/package/pictures" -DOUTPUT="$folder/setup-$1.exe" \
    "$here/../scripts/package/setup.nsi"
}

rm -rf "$folder"
mkdir -p "$local_data" "$programs" "$profile/Desktop" "$profile/Temp"
use_prefix "$folder/wine"
windows_profile=$(winepath -w "$profile" | sed 's/\\/\\\\/g')
cat >"$folder/profile.reg" <<REG
Windows Registry Editor Version 5.00

[HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders]
"Local AppData"="$windows_profile\\\\AppData\\\\Local"
"Programs"="$windows_profile\\\\Start"
"Desktop"="$windows_profile\\\\Desktop"

[HKEY_CURRENT_USER\\Environment]
"TEMP"="$windows_profile\\\\Temp"
"TMP"="$windows_profile\\\\Temp"
REG
printf '\xff\xfe' >"$folder/profile-16.reg"
iconv -f UTF-8 -t UTF-16LE "$folder/profile.reg" >>"$folder/profile-16.reg"
wine regedit /S "$folder/profile-16.reg" >/dev/null 2>&1
wineserver -w

echo 'The zip unpacks and starts.'
/usr/bin/python3 -m zipfile -e "$built"/dist/*.zip "$folder/unpacked"
program=$(find "$folder/unpacked" -name Tessaline.exe)
start_program "$program"
close_program
wineserver -w
[ -d "$estimates" ] || fail 'the program keeps its files in this profile'
listing >"$folder/before"
registry "$folder/registry-before"

echo 'An installer that was cut short installs nothing.'
size=$(stat -c %s "$setup")
for left in $((size - 1)) $((size / 2)); do
  head -c "$left" "$setup" >"$folder/cut.exe"
  expect 2 'a cut installer' "$folder/cut.exe" /S
done
listing | diff "$folder/before" - || fail 'nothing is installed'

tiny=$(mktemp -d)
if mount -t tmpfs -o size=64k tessaline "$tiny" 2>/dev/null; then
  echo 'A full disk is left as it was.'
  expect 5 'an installation without room' "$setup" /S "/D=Z:${tiny//\//\\}"
  [ -z "$(ls "$tiny")" ] || fail 'nothing half installed'
  listing | diff "$folder/before" - || fail 'nothing is installed elsewhere'
else
  echo 'Skipped: no small disk can be made here (not root?).'
  rmdir "$tiny"
  tiny=
fi

echo 'It installs.'
expect 0 'the installation' "$setup" /S
cmp "$program" "$installed/Tessaline.exe"
for file in "$installed"/{uninstall.exe,Guide.html,THIRD-PARTY-NOTICES.txt} \
  "$programs"/{Tessaline,'Tessaline Guide'}.lnk; do
  [ -s "$file" ] || fail "there is $file"
done
[ "$(value DisplayName)" = Tessaline ] || fail 'Windows lists it'
[[ "$(value DisplayVersion)" == 3.* ]] || fail 'with its version'
[ "$(value Publisher)" = 'NORVAK Incorporated' ] || fail 'and its publisher'
[[ "$(value QuietUninstallString)" == *'uninstall.exe" /S' ]] || fail 'and how to remove it'

echo 'While it runs, nothing replaces or removes it.'
start_program "$installed/Tessaline.exe"
until_ 'an estimate is saved' save_an_estimate
xdotool key Return
until_ 'the message closes' hides '^Saved$'
cp "$estimates"/*.gfe "$folder/estimate.gfe"
find "$installed" -type f -exec sha256sum {} + >"$folder/sums"
expect 3 'an upgrade of a running program' "$setup" /S
# The uninstaller otherwise goes on as a copy of itself. It wants the folder without quotes, which
# Wine would set around a word with blanks.
IFS=' ' read -ra here_option <<<"_?=$(winepath -w "$installed")"
expect 3 'a removal of a running program' "$installed/uninstall.exe" /S "${here_option[@]}"
sha256sum --quiet -c "$folder/sums" || fail 'nothing has changed'
close_program

echo 'It is upgraded in its place, and not by an older version.'
package 98.0.0
package 99.0.0
expect 0 'an upgrade' "$folder/setup-99.0.0.exe" /S
expect 4 'an older version' "$folder/setup-98.0.0.exe" /S
[ "$(value DisplayVersion)" = 99.0.0 ] || fail 'the newer version is listed'
cmp "$folder/files/Guide.html" "$installed/Guide.html"
[ "$(find "$installed" -type f | wc -l)" -eq 4 ] || fail 'nothing old is left'

echo 'It is removed.'
expect 0 'the removal' "$installed/uninstall.exe" /S
until_ 'the program is gone' [ ! -e "$installed" ]
until_ 'Windows no longer lists it' is_unlisted
cmp "$estimates"/*.gfe "$folder/estimate.gfe"
listing | grep -v '\.gfe$' | diff "$folder/before" - || fail 'nothing else is left'
wineserver -w
registry "$folder/registry-after"
diff "$folder/registry-before.txt" "$folder/registry-after.txt" || fail 'the registry is as before'
echo 'The estimate is left, byte for byte.'
