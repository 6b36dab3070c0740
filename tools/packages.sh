# What the project needs of a Debian system, and how to get what is missing. To be sourced.
# shellcheck shell=bash disable=SC2034

CMAKE=(cmake ninja-build)
BUILD=(g++ "${CMAKE[@]}" qt6-base-dev libsdl2-dev)
# The compiler for Windows, what makes its installer, and what runs its programs.
WINDOWS=(g++-mingw-w64-x86-64 nsis wine64)
# A virtual display, and what plays on it.
DISPLAY_TOOLS=(xvfb openbox python3-xlib python3-pil)
TESTS=(libgtest-dev clang-format xfwm4 xfconf dbus-daemon at-spi2-core gir1.2-atspi-2.0 python3-gi metacity kwin-x11 icewm weston qt6-wayland
       pulseaudio pulseaudio-utils faketime python3-numpy python3-scipy librsvg2-bin
       file dpkg-dev lintian desktop-file-utils appstream man-db debootstrap)

say() { printf '%s: %s\n' "${0##*/}" "$*"; }

fail() {
  say "$*" >&2
  exit 1
}

# Prints those of its arguments that are not installed.
missing() {
  local installed
  installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null) || true
  for package in "$@"; do
    grep -qxF "installed $package" <<<"$installed" || printf '%s\n' "$package"
  done
}

install_missing() {
  if ! command -v apt-get >/dev/null; then
    for tool in c++ cmake ninja; do
      command -v "$tool" >/dev/null || fail "this system has no apt: install what Debian calls $*"
    done
    return
  fi
  local packages
  mapfile -t packages < <(missing "$@")
  ((${#packages[@]} > 0)) || return 0
  local root=()
  if ((EUID != 0)); then
    command -v sudo >/dev/null || fail "as root, install: ${packages[*]}"
    root=(sudo)
  fi
  say "installing ${packages[*]}"
  "${root[@]}" apt-get update || say "the lists of packages are as they were"
  "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${packages[@]}" ||
    fail "could not install ${packages[*]}"
}
