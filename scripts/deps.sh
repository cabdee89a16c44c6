#!/usr/bin/env bash
# Installs what the build needs on a Debian machine, when it is missing.
set -euo pipefail
packages=(cmake g++ make libgtest-dev libgmock-dev qt6-base-dev qt6-serialport-dev
          libgl-dev xvfb xauth poppler-utils libical-dev)
missing=()
for p in "${packages[@]}"; do
    dpkg -s "$p" >/dev/null 2>&1 || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0
sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get install -y --no-install-recommends "${missing[@]}" ||
    { $sudo apt-get update && $sudo apt-get install -y --no-install-recommends "${missing[@]}"; }
