#!/usr/bin/env bash
# Installs what the build and the desktop program need on a Debian machine, when it is missing.
set -euo pipefail
packages=(cmake g++ make libgtest-dev libgmock-dev qt6-base-dev qt6-serialport-dev qt6-svg-dev
          libgl-dev xvfb xauth poppler-utils libical-dev
          # Metric twins of Arial, Times New Roman and Courier New, in which the text is measured.
          fonts-liberation2
          # Pictures of the screens from the desktop's icon theme.
          breeze-icon-theme
          # The desktop's own way to open a web address.
          xdg-utils
          # A display of its own, on the loopback address, where there is none (scripts/run.sh).
          tigervnc-standalone-server tigervnc-tools x11-utils)
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
