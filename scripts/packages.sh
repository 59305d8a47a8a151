# Installs what is missing on Debian 12, with sudo when not root. Sourced by the commands.

kBuildPackages=(g++-mingw-w64-x86-64 cmake ninja-build)
kRunPackages=(wine wine64 xvfb xauth x11-utils fonts-open-sans fonts-wine)
kTourPackages=(imagemagick xdotool cups cups-client printer-driver-cups-pdf ghostscript poppler-utils)
kPackagePackages=(nsis imagemagick python3 python3-markdown)
kTestPackages=(doctest-dev clang clang-tidy clang-format libclang-rt-14-dev
  python3-cryptography)

need_packages() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' ||
      missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return
  command -v apt-get >/dev/null || { echo "Please install: ${missing[*]}" >&2; exit 1; }
  local as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  echo "Installing ${missing[*]}"
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}
