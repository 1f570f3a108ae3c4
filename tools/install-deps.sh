#!/usr/bin/env bash
# Installs, from Debian's packages, whatever the game needs to build and test that this
# machine does not have yet. Uses sudo when not run as root.
set -euo pipefail

packages=(
    build-essential cmake
    qt6-base-dev qt6-base-dev-tools libgl-dev
    qt6-charts-dev libqt6opengl6-dev
    qt6-translations-l10n
    libsqlite3-dev libsqlitecpp-dev
    libgtest-dev
    fonts-dejavu-core
)

missing=()
for package in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$package")
    fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Instalando: ${missing[*]}"
sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
