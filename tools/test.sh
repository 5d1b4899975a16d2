#!/usr/bin/env bash
# Sets up, builds and runs the whole test suite.
set -euo pipefail
cd "$(dirname "$0")/.."
bash tools/setup.sh
bash tools/build.sh
ctest --test-dir build --output-on-failure -j "$(nproc)"
