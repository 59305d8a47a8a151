#!/usr/bin/env bash
# Checks what the built program is made of: its protections, what it needs beside it, its resources.
# Usage: executable_test.sh PROGRAM [VERSION]. The version is the project's where none is given.
set -uo pipefail
program=$1
project=$(dirname "$0")/../CMakeLists.txt
version=${2:-$(sed -n 's/^project(Tessaline VERSION \([0-9.]*\).*/\1/p' "$project")}
failures=0

# check WHAT TEXT PATTERN: some line of the text matches. check_not: none does, in a text that is there.
check() {
  grep -qE -- "$3" <<<"$2" || { echo "Not so: $1"; failures=$((failures + 1)); }
}
check_not() {
  [ -n "$2" ] && ! grep -qE -- "$3" <<<"$2" || { echo "Not so: $1"; failures=$((failures + 1)); }
}

headers=$(x86_64-w64-mingw32-objdump -p "$program")
check 'it is a window program' "$headers" '^Subsystem.*Windows GUI'
check 'addresses are chosen at random' "$headers" '^\s+DYNAMIC_BASE$'
check 'from the whole address space' "$headers" '^\s+HIGH_ENTROPY_VA$'
check 'data cannot be executed' "$headers" '^\s+NX_COMPAT$'
# Without relocations Windows could not load the program at another address.
check_not 'it has its relocations' "$headers" 'relocations stripped'
check 'and a table of them' "$headers" '^Entry 5 [0-9a-f]+ 0*[1-9a-f][0-9a-f]* Base Relocation'
# A section's flags stand on the line after its name; what may be written has no READONLY.
sections=$(x86_64-w64-mingw32-objdump -h "$program")
check 'there is code' "$sections" 'READONLY.*CODE'
check_not 'no code can be written' "$sections" 'LOAD, CODE'
# The guard is our own: libssp's start-up code loads libraries from beside the program.
grep -qaE 'stack smashing detected|CryptAcquireContext' "$program"
check 'nothing of libssp is in it' $? '^1$'
check 'it says that it is for Windows 7 and later' "$headers" '^MajorSubsystemVersion\s+6$'
check 'and for terminal servers' "$headers" '^DllCharacteristics\s+0000[8-f]'

libraries=$(sed -n 's/.*DLL Name: //p' <<<"$headers" | tr '[:upper:]' '[:lower:]')
# Windows takes its known libraries from the system folder alone, and the common controls by the
# manifest. All others are loaded later, when the program has limited where they are looked for.
foreign=$(grep -vxE '(advapi32|comctl32|comdlg32|gdi32|kernel32|msvcrt|shell32|user32)\.dll' \
  <<<"$libraries")
check 'it needs nothing but Windows' "Others: $foreign" '^Others: $'
check 'which it does need' "$libraries" '^kernel32\.dll$'

resources=$(x86_64-w64-mingw32-windres -J coff -O rc "$program")
check 'the icon has six pictures' "$resources" '^ +0, 1, 6,'
check 'the first is 16 wide' "$resources" '"\\020\\020.*no 1\.'
check 'the last is 256 wide' "$resources" '"\\000\\000.*no 6\.'
check 'icon and banner have their numbers' \
  "$(grep -cE '^(101 14|102 2) ' <<<"$resources")" '^2$'
# The head of a bitmap: its own size, width, height, then 24 bits and one plane.
check 'the banner is 1600 by 180 in full colour' "$(sed -n '/^102 2 /,/^END/p' <<<"$resources")" \
  '^ +0x28L *, 0x640L *, 0xb4L *, 0x180001L'
for value in FileVersion ProductVersion; do
  check "the $value is $version" "$resources" "VALUE \"$value\", \"${version//./\\.}\""
done
check "the numbers are those of $version" "$resources" "^ FILEVERSION ${version//./, }, 0"
manifest=$(sed -n '/^1 24 /,/^END/p' <<<"$resources")
for part in "version=\"\"${version//./\\.}\.0\"\"" 'Microsoft\.Windows\.Common-Controls' \
  'level=""asInvoker""' '>system<' '\{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a\}'; do
  check "the manifest has $part" "$manifest" "$part"
done
exit $((failures > 0))
