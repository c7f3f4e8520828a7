#!/usr/bin/env bash
# Builds the fuzz targets (fuzz/, a project of its own compiled with clang,
# libFuzzer, AddressSanitizer and UndefinedBehaviorSanitizer) and runs each
# for a fixed time on a copy of its seed corpus. Fails when a target crashes;
# the input that did it is kept in build-fuzz/crashes/.
#
#   scripts/fuzz.sh [seconds-per-target]   build and run (default 10 seconds)
#   scripts/fuzz.sh --available            exit 0 when clang++ and libFuzzer are here
#   scripts/fuzz.sh --seeds                write the seed corpora afresh into fuzz/seeds/
set -euo pipefail
cd "$(dirname "$0")/.."

available() {
  command -v clang++ >/dev/null 2>&1 || return 1
  local probe
  probe=$(mktemp -d)
  printf '%s\n' 'extern "C" int LLVMFuzzerTestOneInput(const unsigned char*, unsigned long) { return 0; }' \
    > "$probe/probe.cpp"
  local ok=0
  clang++ -fsanitize=fuzzer "$probe/probe.cpp" -o "$probe/probe" >/dev/null 2>&1 || ok=1
  rm -rf "$probe"
  return $ok
}

build() {
  cmake -S fuzz -B build-fuzz -G Ninja -DCMAKE_CXX_COMPILER=clang++ >/dev/null
  cmake --build build-fuzz
}

case "${1:-}" in
  --available) available; exit ;;
  --seeds) build; build-fuzz/fuzz_make_seeds fuzz/seeds; exit ;;
esac

seconds=${1:-10}
if ! available; then
  echo "fuzz.sh: clang++ with libFuzzer is not installed" >&2
  exit 1
fi
build

targets=(records_decks records_cards records_spreads records_locations records_readings records_diary
         conversion package_reader picture)
# Room for two old spread records: the seeds hold one.
declare -A max_len=([conversion]=33000)

# The targets write their program directories to a memory-backed folder when
# there is one: the record writers flush every file they finish.
if [ -d /dev/shm ] && [ -w /dev/shm ]; then export TMPDIR=/dev/shm; fi
# Each input allocates and frees many records. With the
# sanitizer's defaults every allocation is first filled and every free kept in
# a 256 MB quarantine, which costs more than the input's own work; a quarantine
# of 8 MB keeps the latest frees, which is where a use after a free within
# one input lands. A caller's own ASAN_OPTIONS win.
export ASAN_OPTIONS=${ASAN_OPTIONS:-max_malloc_fill_size=0:quarantine_size_mb=8}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p build-fuzz/crashes build-fuzz/logs

run_target() {
  local t=$1
  mkdir -p "$work/$t"
  cp fuzz/seeds/"$t"/* "$work/$t/"
  local extra=()
  [ -n "${max_len[$t]:-}" ] && extra+=("-max_len=${max_len[$t]}")
  (cd "$work" && "$OLDPWD/build-fuzz/fuzz_$t" -max_total_time="$seconds" -timeout=60 -print_final_stats=1 \
      -artifact_prefix="$OLDPWD/build-fuzz/crashes/$t-" "${extra[@]}" "$work/$t") \
    > "build-fuzz/logs/$t.log" 2>&1
}

# Two at a time: one per core of a small machine.
jobs_per_batch=$(( $(nproc) < 2 ? 1 : 2 ))
failed=()
declare -A pids=()
start=$SECONDS
for t in "${targets[@]}"; do
  run_target "$t" & pids[$t]=$!
  if [ ${#pids[@]} -ge $jobs_per_batch ]; then
    for done_t in "${!pids[@]}"; do
      wait "${pids[$done_t]}" || failed+=("$done_t")
      unset "pids[$done_t]"
    done
  fi
done
for done_t in "${!pids[@]}"; do wait "${pids[$done_t]}" || failed+=("$done_t"); done

for t in "${targets[@]}"; do
  runs=$(sed -n 's/^stat::number_of_executed_units: //p' "build-fuzz/logs/$t.log")
  printf '%-18s %8s executions\n' "$t" "${runs:-?}"
done
echo "fuzzing took $((SECONDS - start)) s"
if [ ${#failed[@]} -gt 0 ]; then
  for t in "${failed[@]}"; do
    echo "---- fuzz_$t crashed; its input is in build-fuzz/crashes/ ----"
    tail -n 40 "build-fuzz/logs/$t.log"
  done
  exit 1
fi
