#!/usr/bin/env bash
# Installs what Cartomar needs, builds it, and runs every test. Tests need no
# display and no sound device.
set -euo pipefail
cd "$(dirname "$0")/.."

# Whether the layout of the sources is checked after the tests
# (scripts/check-format.sh); CARTOMAR_CHECK_FORMAT=0 leaves it out.
CARTOMAR_CHECK_FORMAT=${CARTOMAR_CHECK_FORMAT:-1}

scripts/install-deps.sh
# Every compiler warning fails the build here, though not in a user's build.
cmake -S . -B build -G Ninja -DCARTOMAR_WERROR=ON >/dev/null
cmake --build build
QT_QPA_PLATFORM=offscreen ctest --test-dir build --output-on-failure -j2
# A short fixed run of every fuzz target, where clang and libFuzzer are here.
if scripts/fuzz.sh --available; then scripts/fuzz.sh 10; fi
# The layout last, so that a badly laid out line never hides a failing test.
if [ "$CARTOMAR_CHECK_FORMAT" = 1 ]; then scripts/check-format.sh; fi
