#!/usr/bin/env bash
# Builds Cartomar with AddressSanitizer and UndefinedBehaviorSanitizer in
# build-asan/ and runs every test there. Any report of either sanitizer fails
# the test that caused it. Slower than scripts/test.sh; not part of CI.
set -euo pipefail
cd "$(dirname "$0")/.."
# Lightly optimised, with line tables only: the sanitizers' reports name
# files and lines, and the build stays lighter than a full debug one.
cmake -S . -B build-asan -G Ninja -DCARTOMAR_SANITIZE=ON -DCMAKE_BUILD_TYPE=Debug \
  -DCMAKE_CXX_FLAGS_DEBUG="-O1 -g1" >/dev/null
cmake --build build-asan -j "$(nproc)"
# Qt's own caches and plugins keep memory until the process ends: leaks are
# not looked for. Every other finding ends the test with an error.
export ASAN_OPTIONS=detect_leaks=0:abort_on_error=1:strict_string_checks=1:detect_stack_use_after_return=1
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
QT_QPA_PLATFORM=offscreen ctest --test-dir build-asan --output-on-failure -j2 "$@"
