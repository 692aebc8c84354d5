#!/usr/bin/env bash
# Installs the Debian packages that building, running and testing need. Safe to run again: it only
# installs what is missing.
set -euo pipefail

packages=(
    build-essential cmake ninja-build ccache pkg-config clang-format
    qtbase5-dev qtbase5-dev-tools libqt5svg5-dev qttools5-dev qttools5-dev-tools
    xvfb xauth fonts-dejavu-core
)

missing=()
for package in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$package")
    fi
done

if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

echo "Installing: ${missing[*]}"
sudo=""
if [ "$(id -u)" -ne 0 ]; then
    sudo="sudo"
fi
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -q
$sudo apt-get install -y -q --no-install-recommends "${missing[@]}"
