#!/usr/bin/env bash
# Long fuzzing sessions: builds the fuzz targets (clang) in build-fuzz and runs
# each one for RUNS inputs (default 10 million), one after another or all at
# once with --parallel. Corpora grow in build-fuzz/fuzz-long/NAME, logs go to
# build-fuzz/fuzz-long/NAME.log; a finding is written as
# build-fuzz/fuzz-long/crash-* (or timeout-*, oom-*) and ends that target's run.
#   tools/fuzz-long.sh [--parallel] [RUNS] [TARGET...]
set -euo pipefail
cd "$(dirname "$0")/.."
source tools/setup.sh
quarzel_ensure_packages "${QUARZEL_RUN_PACKAGES[@]}" "${QUARZEL_FUZZ_PACKAGES[@]}"
parallel=0
if [ "${1:-}" = "--parallel" ]; then parallel=1; shift; fi
runs=${1:-10000000}
shift || true
targets=("$@")
[ ${#targets[@]} -eq 0 ] && targets=(parse_number number_format catalogue)
quarzel_build_fuzz
out=build-fuzz/fuzz-long
mkdir -p "$out"
one() {
  local t=$1
  mkdir -p "$out/$t"
  build-fuzz/tests/fuzz/fuzz_$t -runs="$runs" -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 \
    -artifact_prefix="$out/" "$out/$t" "tests/fuzz/corpus/$t" >"$out/$t.log" 2>&1 &&
    echo "$t: $(grep -m1 'stat::number_of_executed_units' "$out/$t.log" | awk '{print $2}') inputs, no finding" ||
    echo "$t: ended early (a finding, or interrupted), see $out/$t.log"
}
if [ $parallel = 1 ]; then
  for t in "${targets[@]}"; do one "$t" & done
  wait
else
  for t in "${targets[@]}"; do one "$t"; done
fi
