#!/usr/bin/env bash
# Sets up, builds and runs the whole test suite, the fuzzers' short runs included.
set -euo pipefail
cd "$(dirname "$0")/.."
bash tools/setup.sh test
bash tools/build.sh test
ctest --test-dir build --output-on-failure -j "$(nproc)"
