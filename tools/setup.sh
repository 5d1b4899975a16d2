#!/usr/bin/env bash
# Installs the Debian packages that are missing; does nothing when all are there.
#   setup.sh run    what building and running the program needs
#   setup.sh test   that, and what the tests, benchmarks and fuzzers need
set -euo pipefail
packages=(cmake ninja-build g++ pkg-config qt6-base-dev libqt6svg6 fonts-dejavu-core)
if [ "${1:-test}" = test ]; then
    packages+=(googletest libgtest-dev libgmock-dev libbenchmark-dev clang libclang-rt-14-dev)
fi
missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
    sudo_cmd=()
    [ "$(id -u)" -eq 0 ] || sudo_cmd=(sudo)
    "${sudo_cmd[@]}" apt-get update -q
    DEBIAN_FRONTEND=noninteractive "${sudo_cmd[@]}" apt-get install -y -q "${missing[@]}"
fi
