#!/usr/bin/env bash
# Configures and builds into ./build (Release with debug info).
#   build.sh run    the two programs only
#   build.sh test   everything: programs, tests, benchmarks and the libFuzzer programs
set -euo pipefail
cd "$(dirname "$0")/.."
if [ "${1:-test}" = run ]; then
    cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DZVX_BUILD_TESTS=OFF \
        -DZVX_BUILD_BENCH=OFF -DZVX_LIBFUZZER=OFF >/dev/null
    cmake --build build --target zvx zvxcat
else
    cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DZVX_BUILD_TESTS=ON \
        -DZVX_BUILD_BENCH=ON -DZVX_LIBFUZZER=ON >/dev/null
    cmake --build build
fi
