#!/usr/bin/env bash
# Sets up, builds and starts the program.
set -euo pipefail
cd "$(dirname "$0")/.."
bash tools/setup.sh run
bash tools/build.sh run
exec build/bin/zvx "$@"
