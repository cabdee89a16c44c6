#!/usr/bin/env bash
# Builds the desktop program and starts it. Its data live in its own folder,
# ~/NorvaxConstructionScheduler, as the program keeps everything beside itself.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/deps.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release -DSCHEDULER_TESTS=OFF -DSCHEDULER_BENCH=OFF >/dev/null
cmake --build build -j"$(nproc)" --target NorvaxConstructionScheduler
home="$HOME/NorvaxConstructionScheduler"
mkdir -p "$home"
cp -f "$(find build -name 'NorvaxConstructionScheduler.bin' -type f -perm -u+x | head -n 1)" "$home/"
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    exec xvfb-run -a -s "-screen 0 1600x1000x24" "$home/NorvaxConstructionScheduler.bin"
fi
exec "$home/NorvaxConstructionScheduler.bin"
