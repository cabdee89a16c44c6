#!/usr/bin/env bash
# Builds everything with warnings as errors and runs every test, then does the same
# in a build with AddressSanitizer and UndefinedBehaviorSanitizer.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/deps.sh
jobs="$(nproc)"

cmake -S . -B build-ci -DCMAKE_BUILD_TYPE=RelWithDebInfo -DSCHEDULER_WERROR=ON >/dev/null
cmake --build build-ci -j"$jobs"
(cd build-ci && ctest --output-on-failure -j"$jobs" --timeout 300)

cmake -S . -B build-asan -DCMAKE_BUILD_TYPE=Debug -DSCHEDULER_WERROR=ON -DSCHEDULER_SANITIZE=ON \
      -DSCHEDULER_DESKTOP=OFF -DSCHEDULER_BENCH=OFF >/dev/null
cmake --build build-asan -j"$jobs"
(cd build-asan && ASAN_OPTIONS=detect_leaks=0 ctest --output-on-failure -j"$jobs" --timeout 300)

# The start-up benchmark prints its figures; timings depend on the machine, so a slow
# run is reported here rather than failing the tests.
if [ -x build-ci/bench/startup_bench ]; then
    build-ci/bench/startup_bench || echo "warning: start-up slower than one second on this machine"
fi
