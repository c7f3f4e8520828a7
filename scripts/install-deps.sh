#!/usr/bin/env bash
# Installs every Debian package Cartomar needs to build, run and test.
# Quiet and quick when everything is already there.
set -euo pipefail
packages=(
  build-essential cmake ninja-build ccache
  qt6-base-dev qt6-multimedia-dev qt6-image-formats-plugins
  qt6-tools-dev qt6-l10n-tools qt6-translations-l10n
  gstreamer1.0-plugins-base gstreamer1.0-plugins-good
  fonts-dejavu-core poppler-utils xvfb xauth
  clang libclang-rt-dev clang-format
  desktop-file-utils appstream shared-mime-info
)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0
SUDO=""
[ "$(id -u)" -ne 0 ] && SUDO="sudo"
echo "Installing: ${missing[*]}"
$SUDO apt-get update -qq
DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
