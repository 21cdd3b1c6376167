#!/usr/bin/env bash
# Sets up a fresh Debian 12 machine (as root) with what the build needs, then configures, builds
# and runs every test of the library.
set -euo pipefail
cd "$(dirname "$0")/.."

packages=(cmake make g++ python3 libpoco-dev libgtest-dev libgmock-dev libbenchmark-dev)
missing=()
for package in "${packages[@]}"; do
  dpkg -s "$package" >/dev/null 2>&1 || missing+=("$package")
done
if [ ${#missing[@]} -gt 0 ]; then
  apt-get update -qq
  DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "${missing[@]}"
fi

jobs=$(nproc)
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DNUMBERING_BUILD_BENCH=ON
cmake --build build -j"$jobs"
ctest --test-dir build -j"$jobs" --output-on-failure
