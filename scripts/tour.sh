#!/usr/bin/env bash
# Drives the real program through a clerk's day with real mouse and keyboard input, and leaves pictures
# and the printed PDF: scripts/tour.sh TESSALINE.EXE FOLDER. Needs a display of 1920 x 1080 without a
# window manager and a Wine prefix; empties that prefix's estimates.
set -euo pipefail
# For the letters beyond ASCII that are typed.
export LC_ALL=C.UTF-8
here=$(cd "$(dirname "$0")" && pwd)
prefix=${WINEPREFIX:?a Wine prefix}
. "$here/desktop.sh"
export WINEPREFIX=$prefix
program=$1 folder=$2
data=$here/../tests/data

# The main window opens centred: its client area, and in that the form's canvas, start here.
client_x=304 client_y=103
canvas_x=$((client_x + 182)) canvas_y=$((client_y + 266))
scroll=0

fail() {
  echo "The tour is lost: $1"
  import -window root "$folder/lost.png"
  exit 1
}

shows() { xdotool search --onlyvisible --name "$1" >/dev/null 2>&1; }

await() {
  for _ in $(seq 150); do shows "$1" && sleep 0.2 && return; sleep 0.1; done
  fail "no window named $1"
}

gone() {
  for _ in $(seq 150); do shows "$1" || { sleep 0.2; return 0; }; sleep 0.1; done
  fail "$1 does not close"
}

# Taken once the screen stands still, but for a blinking caret. Of a window that is named, there
# is a picture of its own in the folder `windows`.
picture() {
  local last=$folder/last.png now=$folder/$1.png different
  sleep 0.3
  import -window root "$now"
  for _ in $(seq 20); do
    mv "$now" "$last"
    sleep 0.4
    import -window root "$now"
    different=$(compare -metric AE "$last" "$now" null: 2>&1) || true
    [ "${different%%.*}" -lt 100 ] && break
  done
  rm -f "$last"
  [ -z "${2:-}" ] || cut_out "$now" "$2"
}

cut_out() {
  local X Y WIDTH HEIGHT
  eval "$(xdotool getwindowgeometry --shell "$(xdotool search --onlyvisible --name "$2" |
    tail -n 1)" | grep -E '^(X|Y|WIDTH|HEIGHT)=[0-9]+$')"
  mkdir -p "$folder/windows"
  /usr/bin/convert "$1" -crop "${WIDTH}x$HEIGHT+$X+$Y" +repage "$folder/windows/${1##*/}"
}
click() { xdotool mousemove "$1" "$2" click 1; sleep 0.1; }
key() { xdotool key --delay 30 "$@"; sleep 0.1; }
write() { xdotool type --delay 12 -- "$1"; }

# Scrolls so that a place of the canvas can be seen: from the top, 56 pixels a notch. Over the margin,
# because Wine's edits keep the wheel to themselves.
reach() {
  local wanted=$(($1 < 560 ? 0 : ($1 - 250) / 56))
  if [ $((wanted * 56)) -ne $scroll ]; then
    xdotool mousemove $((client_x + 30)) $((canvas_y + 100))
    [ $scroll -eq 0 ] || xdotool click --repeat $((scroll / 56 + 1)) --delay 8 4
    [ $wanted -eq 0 ] || xdotool click --repeat $wanted --delay 8 5
    scroll=$((wanted * 56 > 1334 ? 1334 : wanted * 56))
    sleep 0.4
  fi
}

press() { reach "$2"; click $((canvas_x + $1)) $((canvas_y + $2 - scroll)); }
bar() { click $((client_x + 20 + $1)) $((client_y + 174 + $2)); }

# A field by the top left corner of its box, and what is typed into it over what was there.
field() {
  press $(($1 + 12)) $(($2 + 12))
  key Home shift+End
  write "$3"
}

fields() {
  local x y text
  while read -r x y text; do field "$x" "$y" "$text"; done
}

# The item dialog, by keyboard: item, where, diagnosis, code, quantity, charge.
item() {
  press 60 1332
  await '^Expected Item'
  local first=1 cell
  for cell in "$1" "$2" "$3" '' "$4" "$5" "$6"; do
    [ $first = 1 ] || key Tab
    first=0
    [ -z "$cell" ] || write "$cell"
  done
  [ -z "${7:-}" ] || picture "$7" '^Expected Item'
  key Return
  gone '^Expected Item'
}

answer() {
  await "$1"
  [ -z "${2:-}" ] || picture "$2" "$1"
  key Return
  gone "$1"
}

preview() {
  press 80 1898
  await '^Print Preview'
  picture "$1" '^Print Preview'
  click 670 99
  picture "$2"
  key alt+F4
  gone '^Print Preview'
}

# A lookup: its title, what is searched for, the picture; a double click takes the first row.
choose() {
  await "$1"
  write "$2"
  picture "$3" "$1"
  xdotool mousemove 620 406 click --repeat 2 --delay 60 1
  gone "$1"
}

fill_form() {
  fields <<'FIELDS'
28 86 Ann
316 86 Marie
604 86 Lee-Svensson
28 134 02/29/1984
316 134 (555) 555-0123
604 134 ann@lee
28 182 12 Oak Street
28 230 Apt 4
316 230 Springfield
604 230 IL
28 278 62701-1234
316 278 0042
28 418 Prairie Orthopedic & Sports Clinic
600 418 Outpatient surgery center
28 466 400 Capitol Avenue
28 514 Springfield
316 514 IL
604 514 62704
28 562 Pat Morgan
316 562 (555) 555-0177
604 562 estimates@prairie.example
28 610 123-456-7890
316 610 12-3456789
604 610 www.prairie.example
316 903 Knee arthroscopy with meniscus repair
28 951 Tear of medial meniscus
316 951 S83.242A
604 951 Knee pain
28 999 M25.562
316 999 12/14/2026; 12/21/2026
28 1699 Bring a list of your medicines. The anesthesiologist bills separately.
FIELDS
  press 700 780
  key Down Return
  picture 02-form-middle
}

add_items() {
  item "Surgeon's fee, arthroscopy" '400 Capitol Avenue' S83.242A 29882 1 '$4,150' 03-item-dialog
  item 'Facility fee' '400 Capitol Avenue' S83.242A 29882 1 6200.00
  item 'MRI, knee, without contrast' 'Prairie Imaging, 410 Capitol Avenue' M25.562 73721 1 890.50
  item 'Physical therapy, 30 minutes' 'Prairie Therapy' M25.562 97110 12 62.5
  item 'Crutches, adjustable aluminium, pair, with hand grips and tips' '' '' E0114 1 48
  item 'Office visit, established patient' '400 Capitol Avenue' M25.562 99213 2 145
  item 'Post-operative brace' '' S83.242A L1832 1 615
  picture 04-items '^Tessaline'
  press 60 1592
  await '^Separately'
  write Anesthesia
  key Tab
  write 'Capital Anesthesia Group gives its own estimate: (555) 555-0190.'
  picture 05-separate-dialog
  key Tab Return
  gone '^Separately'
  picture 05-lists
}

save_with_a_wrong_field() {
  bar 188 35
  answer '^Saved$'
  reach 0
  picture 06-wrong-field-marked '^Tessaline'
  press 80 1898
  answer '^Check Estimate$' 07-check-estimate
  field 604 134 ann.lee@example.com
  bar 188 35
  answer '^Saved$'
  picture 07-form '^Tessaline'
}

print_estimate() {
  press 180 1898
  await '^Print$'
  picture 10-print-dialog '^Print$'
  key Return
  gone '^Print$'
  # The job is in the spooler when the program goes on; the file follows a little later.
  for _ in $(seq 150); do
    [ -z "$(lpstat -o)" ] && [ -s "$printer_folder/job.ps" ] && break
    sleep 0.2
  done
  [ -s "$printer_folder/job.ps" ] || fail "the printed file does not appear"
  ps2pdf "$printer_folder/job.ps" "$folder/estimate.pdf"
  pdftoppm -r 96 -png "$folder/estimate.pdf" "$folder/printed"
}

# An issued estimate, saved, edited and saved again, becomes a revision.
revise() {
  bar 188 35
  answer '^Saved$'
  field 316 903 'Knee arthroscopy with meniscectomy'
  bar 188 35
  answer '^Saved$' 11-revision-saved
}

sample() {
  bar 690 30
  answer '^Sample$'
  reach 0
  picture 12-sample
  preview 13-sample-page-1 14-sample-page-2
}

lookups() {
  bar 40 35
  press 790 37
  choose '^Patient Lookup' svenss 15-patient-lookup
  press 790 365
  choose '^Provider Lookup' prairie 16-provider-lookup
  reach 0
  picture 17-patient-and-provider-copied
}

open_again() {
  bar 112 35
  await '^Open Saved'
  picture 18-open
  key Escape
  gone '^Open Saved'
  bar 112 35
  choose '^Open Saved' -r1 19-open-search
  picture 20-opened
  bar 112 35
  # A keyboard with this letter: what xdotool makes up for others does not reach Wine.
  setxkbmap us altgr-intl
  choose '^Open Saved' 'RÉFECTION' 21-older-edition-search
  reach 903
  picture 22-older-edition-opened
}

about() {
  bar 895 30
  await '^About'
  picture 23-about '^About'
  key Escape
  gone '^About'
}

find_store() {
  base=$(wine cmd /c 'echo %LOCALAPPDATA%' 2>/dev/null | tr -d '\r')
  base=$(winepath -u "$base" 2>/dev/null)/NORVAK/Tessaline
  store=$base/Estimates
}

trap stop_printer EXIT
rm -rf "$folder"
mkdir -p "$folder"
# Before the program: Wine looks for printers when it starts.
print=no
if start_printer; then print=yes; else echo "No CUPS here: the tour does not print."; fi
find_store
rm -rf "$store"
wine "$program" >/dev/null 2>&1 &
await '^Tessaline'
picture 01-start
[ -d "$store" ] || fail "the program made no folder for its files"
cp "$data/legacy-data.key" "$base/data.key"
cp "$data/legacy-estimate.gfe" "$store/older.gfe"
fill_form
add_items
save_with_a_wrong_field
preview 08-preview-page-1 09-preview-page-2
[ $print = no ] || print_estimate
revise
sample
lookups
open_again
about
key alt+F4
gone '^Tessaline'
wait $!
# An automatic save may have come at any time, so there may be more files than these.
[ "$(ls "$store" | grep -c -- '-R1\.gfe$')" -eq 1 ] || fail "there should be one revision"
cmp -s "$data/legacy-estimate.gfe" "$store/older.gfe" || fail "the older file has changed"
echo "The tour is over. Its pictures are in $folder"
