#!/usr/bin/env bash
# Installs what Cartomar needs, builds it, and runs every test. Tests need no
# display and no sound device.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
cmake -S . -B build -G Ninja >/dev/null
cmake --build build
QT_QPA_PLATFORM=offscreen ctest --test-dir build --output-on-failure -j2
# A short fixed run of every fuzz target, where clang and libFuzzer are here.
if scripts/fuzz.sh --available; then scripts/fuzz.sh 10; fi
