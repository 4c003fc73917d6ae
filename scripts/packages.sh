#!/usr/bin/env bash
# Installs the missing Debian packages for building, running and testing.
# When nothing is missing it calls dpkg once, and neither apt nor the network.
#
#   scripts/packages.sh           install what is missing (as root, or through sudo)
#   scripts/packages.sh --list    print the packages, one per line
set -euo pipefail

readonly packages=(
  # Build: the program is 32-bit; some targets of the tests are 64-bit.
  cmake ninja-build g++-mingw-w64-i686-posix g++-mingw-w64-x86-64-posix googletest
  # Build: the installer that the tests read.
  nsis
  nlohmann-json3-dev
  # Run: Wine for both kinds of program, the Japanese locale and the fonts to show it.
  wine wine32:i386 wine64 fonts-wine locales fonts-ipafont-gothic
  # Drive and look: the virtual display, its pointer and keys, queries, screenshots.
  xvfb xdotool x11-utils imagemagick
  # Check: the format of the sources, the outputs for other programs.
  clang-format python3
)

missing_packages() {
  local -A installed=()
  local name state
  # dpkg-query names a package with its architecture only where several can be installed together.
  while read -r name state; do
    [[ $state == installed ]] && installed[$name]=1
  done < <(dpkg-query -W -f '${Package} ${db:Status-Status}\n${Package}:${Architecture} ${db:Status-Status}\n' \
             "${packages[@]}" 2>/dev/null || true)
  for name in "${packages[@]}"; do
    [[ -n ${installed[$name]:-} ]] || echo "$name"
  done
}

as_root() {
  if [[ $(id -u) == 0 ]]; then
    env DEBIAN_FRONTEND=noninteractive "$@"
  else
    sudo env DEBIAN_FRONTEND=noninteractive "$@"
  fi
}

install_packages() {
  as_root apt-get install --yes --no-install-recommends "$@"
}

main() {
  if [[ ${1:-} == --list ]]; then
    printf '%s\n' "${packages[@]}"
    return
  fi

  local missing
  mapfile -t missing < <(missing_packages)
  [[ ${#missing[@]} == 0 ]] && return

  echo "Installing: ${missing[*]}"
  if [[ $(id -u) != 0 ]] && ! command -v sudo >/dev/null; then
    echo "Missing packages, and neither root nor sudo to install them: ${missing[*]}" >&2
    return 1
  fi

  if ! dpkg --print-foreign-architectures | grep -qx i386; then
    as_root dpkg --add-architecture i386
  fi
  # One outdated index must not prevent the use of the others.
  as_root apt-get update || echo "Some package indexes could not be read; going on without them." >&2

  if ! install_packages "${missing[@]}"; then
    # The usual cause: different states of the two architectures' updates, so that the newest
    # versions do not fit together. The release itself is always consistent.
    local release
    # shellcheck source=/dev/null
    release=$(. /etc/os-release && echo "${VERSION_CODENAME:-stable}")
    echo "Trying again with the packages of $release itself."
    install_packages -t "$release" "${missing[@]}" || true
  fi

  mapfile -t missing < <(missing_packages)
  if [[ ${#missing[@]} != 0 ]]; then
    echo "These packages could not be installed: ${missing[*]}" >&2
    return 1
  fi
}

main "$@"
