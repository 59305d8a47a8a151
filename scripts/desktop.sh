# A display, a Wine prefix and a printer of our own. Sourced by the commands.

export WINEDEBUG=-all
# Keeps a new prefix from asking for add-ons that the program does not need, and Start menu entries
# from being copied into the Linux desktop's.
export WINEDLLOVERRIDES='mscoree=;mshtml=;winemenubuilder.exe='

desktop_pids=()
# Only a prefix of our own is ever used, or stopped.
unset WINEPREFIX

# For a trap on EXIT under "set -e", where a command that fails would become the result of the whole
# script: what is to be stopped may have ended by itself, as an idle wineserver does.
stop_desktop() {
  [ -z "${WINEPREFIX:-}" ] || wineserver -k 2>/dev/null || true
  local pid
  for pid in "${desktop_pids[@]}"; do kill "$pid" 2>/dev/null || true; done
}

have_display() {
  [ -n "${DISPLAY:-}" ] && xdpyinfo >/dev/null 2>&1
}

# A virtual display on a free number.
start_display() {
  local number
  number=$(mktemp)
  Xvfb -displayfd 3 -screen 0 1920x1080x24 -nolisten tcp 3>"$number" >/dev/null 2>&1 &
  desktop_pids+=($!)
  local tries=0
  until [ -s "$number" ]; do
    sleep 0.1
    tries=$((tries + 1))
    [ $tries -lt 100 ] || { echo "No virtual display." >&2; return 1; }
  done
  DISPLAY=:$(cat "$number")
  export DISPLAY
  rm -f "$number"
}

# Makes the Wine prefix where it is missing and uses it. Needs a display.
use_prefix() {
  WINEPREFIX=$1
  export WINEPREFIX
  [ -f "$WINEPREFIX/ready" ] && return
  rm -rf "$WINEPREFIX"
  mkdir -p "$(dirname "$WINEPREFIX")"
  echo "Making a Wine prefix"
  wineboot -i >/dev/null 2>&1
  winecfg -v win10 >/dev/null 2>&1
  # The caption's symbols are in this font, which a new prefix does not find.
  cp /usr/share/wine/fonts/marlett.ttf "$WINEPREFIX/drive_c/windows/Fonts"
  # Open Sans is the closest that Debian has to Segoe UI. Without "Managed"="N" Wine waits two
  # seconds for a window manager whenever a window closes. The colours are of a light frame.
  cat >"$WINEPREFIX/settings.reg" <<'REG'
Windows Registry Editor Version 5.00

[HKEY_CURRENT_USER\Software\Wine\Fonts\Replacements]
"Segoe UI"="Open Sans"

[HKEY_CURRENT_USER\Software\Wine\X11 Driver]
"Managed"="N"

[HKEY_CURRENT_USER\Control Panel\Colors]
"ActiveBorder"="240 240 240"
"ActiveTitle"="243 243 243"
"GradientActiveTitle"="243 243 243"
"GradientInactiveTitle"="243 243 243"
"InactiveBorder"="240 240 240"
"InactiveTitle"="243 243 243"
"InactiveTitleText"="130 130 130"
"TitleText"="0 0 0"

[HKEY_CURRENT_USER\Software\Wine\WineDbg]
"ShowCrashDialog"=dword:00000000
REG
  wine regedit /S "$WINEPREFIX/settings.reg" >/dev/null 2>&1
  wineserver -w
  touch "$WINEPREFIX/ready"
}

# A printer of our own, the default one, on a print server of our own: nothing of the machine's is
# changed. Its last job is $printer_folder/job.ps. False where there is no CUPS, or no root for it.
start_printer() {
  [ -x /usr/sbin/cupsd ] && [ "$(id -u)" -eq 0 ] || return 1
  local PATH=$PATH:/usr/sbin
  # A short path: the name of a socket has room for 100 characters.
  printer_folder=$(mktemp -d /tmp/tessaline-printer.XXXXXX)
  mkdir -p "$printer_folder"/{root,spool,cache,state,tmp}
  # Filters run as another user.
  chmod 755 "$printer_folder"
  chmod 1777 "$printer_folder/tmp"
  cat >"$printer_folder/cupsd.conf" <<CONF
Listen $printer_folder/socket
DefaultAuthType None
WebInterface No
<Location />
  Allow all
</Location>
<Policy default>
  <Limit All>
    Allow all
  </Limit>
</Policy>
CONF
  cat >"$printer_folder/cups-files.conf" <<CONF
FileDevice Yes
ServerRoot $printer_folder/root
RequestRoot $printer_folder/spool
CacheDir $printer_folder/cache
StateDir $printer_folder/state
TempDir $printer_folder/tmp
AccessLog $printer_folder/access
ErrorLog $printer_folder/errors
PageLog $printer_folder/pages
CONF
  /usr/sbin/cupsd -f -c "$printer_folder/cupsd.conf" -s "$printer_folder/cups-files.conf" \
    >/dev/null 2>&1 &
  desktop_pids+=($!)
  export CUPS_SERVER=$printer_folder/socket
  local tries=0
  until lpstat -r 2>/dev/null | grep -q 'is running'; do
    sleep 0.1
    tries=$((tries + 1))
    [ $tries -lt 100 ] || return 1
  done
  lpadmin -p PDF -v "file:$printer_folder/job.ps" -P /usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd \
    -o PageSize=Letter -E 2>/dev/null && lpadmin -d PDF
}

stop_printer() {
  local pid
  for pid in "${desktop_pids[@]}"; do kill "$pid" 2>/dev/null || true; done
  # The server removes files of its own as it ends.
  for pid in "${desktop_pids[@]}"; do wait "$pid" 2>/dev/null || true; done
  [ -z "${printer_folder:-}" ] || rm -rf "$printer_folder"
}
