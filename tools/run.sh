#!/usr/bin/env bash
# Sets up, builds and starts the program.
set -euo pipefail
cd "$(dirname "$0")/.."
bash tools/setup.sh
bash tools/build.sh
exec build/bin/zvx "$@"
