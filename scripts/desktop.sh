# A display, a Wine prefix and a PDF printer of our own. Sourced by the commands.

export WINEDEBUG=-all
# Keeps a new prefix from asking for add-ons that the program does not need.
export WINEDLLOVERRIDES='mscoree=;mshtml='

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
  # Open Sans is the closest that Debian has to Segoe UI. Without "Managed"="N" Wine waits two
  # seconds for a window manager whenever a window closes.
  cat >"$WINEPREFIX/settings.reg" <<'REG'
Windows Registry Editor Version 5.00

[HKEY_CURRENT_USER\Software\Wine\Fonts\Replacements]
"Segoe UI"="Open Sans"

[HKEY_CURRENT_USER\Software\Wine\X11 Driver]
"Managed"="N"

[HKEY_CURRENT_USER\Software\Wine\WineDbg]
"ShowCrashDialog"=dword:00000000
REG
  wine regedit /S "$WINEPREFIX/settings.reg" >/dev/null 2>&1
  wineserver -w
  touch "$WINEPREFIX/ready"
}

# A printer named PDF that is the default and writes into ~/PDF. False where there is no CUPS.
start_printer() {
  [ -x /usr/sbin/cupsd ] || return 1
  if ! lpstat -r 2>/dev/null | grep -q 'is running'; then
    [ "$(id -u)" -eq 0 ] || return 1
    /usr/sbin/cupsd -f >/dev/null 2>&1 &
    desktop_pids+=($!)
    local tries=0
    until lpstat -r 2>/dev/null | grep -q 'is running'; do
      sleep 0.1
      tries=$((tries + 1))
      [ $tries -lt 100 ] || return 1
    done
  fi
  lpstat -p PDF >/dev/null 2>&1 ||
    lpadmin -p PDF -v cups-pdf:/ -m lsb/usr/cups-pdf/CUPS-PDF_opt.ppd -o PageSize=Letter -E \
      2>/dev/null || return 1
  # Programs take the default printer; `stop_printer` gives the earlier one back.
  printer_default=$(lpstat -d 2>/dev/null | sed -n 's/^system default destination: //p')
  lpadmin -d PDF
}

stop_printer() {
  [ -n "${printer_default:-}" ] && lpadmin -d "$printer_default" 2>/dev/null
  local pid
  for pid in "${desktop_pids[@]}"; do kill "$pid" 2>/dev/null; done
  return 0
}
