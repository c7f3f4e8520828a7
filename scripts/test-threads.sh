#!/usr/bin/env bash
# Builds Cartomar with ThreadSanitizer in build-tsan/ and runs the tests of
# the code that works on other threads: the picture import, whose pictures
# are worked on a thread pool, and its screen, whose thumbnails are read on
# one. Any race the sanitizer sees fails the test that caused it. Slower
# than scripts/test.sh; not part of CI. Extra arguments go to ctest.
set -euo pipefail
cd "$(dirname "$0")/.."
tests=(decks_tst_pictureimport decks_tst_cardrules)
# Lightly optimised, with line tables only, as the other sanitized build.
cmake -S . -B build-tsan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG="-O1 -g1" \
  -DCMAKE_CXX_FLAGS="-fsanitize=thread -fno-omit-frame-pointer" \
  -DCMAKE_EXE_LINKER_FLAGS=-fsanitize=thread -DCMAKE_SHARED_LINKER_FLAGS=-fsanitize=thread >/dev/null
cmake --build build-tsan -j "$(nproc)" --target "${tests[@]}"
# Qt is not built for the sanitizer: tsan.supp says which of its own
# workings are not checked, and why.
export TSAN_OPTIONS="halt_on_error=1:second_deadlock_stack=1:suppressions=$PWD/scripts/tsan.supp"
QT_QPA_PLATFORM=offscreen ctest --test-dir build-tsan --output-on-failure \
  -R "^($(IFS='|'; echo "${tests[*]}"))\$" "$@"
