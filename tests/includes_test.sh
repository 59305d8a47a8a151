#!/usr/bin/env bash
# Compares every #include "folder/..." of the program with what the folder's CMakeLists.txt allows,
# and refuses rings of folders and of files: includes_test.sh LOOKS_AT. CMake writes LOOKS_AT; each
# line is a folder, or a single file that is treated apart, and the folders that it may include. A
# header and the .cpp beside it count as one file.
set -euo pipefail
allowed=$(realpath "$1")
cd "$(dirname "$0")/.."

# "file included-file", without the generated headers, which stand in no folder.
includes=$(cut -d' ' -f1 "$allowed" | xargs -I{} find {} -maxdepth 1 -name '*.h' -o -name '*.cpp' |
  sort -u | xargs sed -nE '/^ *# *include +"/ { s|[^"]*"([^"]*)".*|\1|; F; p }' |
  paste -d' ' - - | grep '/.* .*/')
[ -n "$includes" ]

failed=0
awk '
  function folder(path) { sub("/[^/]*$", "", path); return path }
  NR == FNR { place[$1]; for (i = 1; i <= NF; ++i) may[$1, $i]; next }
  { from = ($1 in place) ? $1 : folder($1) }
  !((from, folder($2)) in may) { print $1 " may not include " $2; wrong = 1 }
  END { exit wrong }' "$allowed" - <<<"$includes" || failed=1

# A ring has no order.
ring() {
  local found
  found=$(tsort 2>&1 >/dev/null) && return
  printf '%s\n' "A ring of $1:" "$found"
  failed=1
}
ring folders < <(awk '{ for (i = 2; i <= NF; ++i) print $1, $i }' "$allowed")
ring files < <(sed -E 's/\.(h|cpp)\>//g' <<<"$includes" | awk '$1 != $2')
exit $failed
