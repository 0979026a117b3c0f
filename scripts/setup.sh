#!/usr/bin/env bash
# Installs missing packages for building, running and testing. If none is missing, it does not use
# the network.
set -euo pipefail

packages=(
  g++ cmake ninja-build mold
  qt6-base-dev qt6-serialport-dev
  libicu-dev
  binutils-mingw-w64-x86-64
  libgtest-dev libgmock-dev
  clang-format clang-tidy
  clang libclang-rt-14-dev llvm python3-clang
  libbenchmark-dev
  gettext qt6-l10n-tools qt6-tools-dev qt6-translations-l10n
  at-spi2-core dbus-daemon gir1.2-atspi-2.0 python3-gi xvfb
  fonts-dejavu-core fonts-wqy-microhei
  ansible-core fish groff-base python3-jsonschema python3-voluptuous systemd zsh
  desktop-file-utils appstream dpkg-dev
  libmosquitto-dev mosquitto mosquitto-clients prometheus prometheus-alertmanager curl openssl
)

missing=()
for package in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
    missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || {
    echo "Missing: ${missing[*]}. Install them as root, or install sudo." >&2
    exit 1
  }
  as_root=(sudo)
fi
echo "Installing: ${missing[*]}"
"${as_root[@]}" apt-get update -q
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
  apt-get install -y -q --no-install-recommends "${missing[@]}"
