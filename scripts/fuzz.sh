#!/usr/bin/env bash
# Runs each fuzz target for a while on its corpus and the inputs kept by earlier runs. Usage:
# scripts/fuzz.sh [seconds] [preset]
#
# The preset `fuzz` is the quickest to run; `asan` has all code built already where the tests have run.
#
# An input that causes a failure is saved in build/fuzz/findings. Once the fault is fixed, add the
# input to fuzz/corpus/<target>.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds="${1:-5}"
preset="${2:-fuzz}"

echo "Building the fuzz targets (build/$preset)"
cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset" --target Fuzzers
export LLVM_PROFILE_FILE=/dev/null  # what they reach is not what the tests reach
mkdir -p build/fuzz/findings
fuzz() {
  local target="$1" log="build/fuzz/$1.log"
  mkdir -p "build/fuzz/corpus/$target"
  if ! timeout $((seconds + 600)) "build/$preset/bin/fuzz-$target" -max_total_time="$seconds" -timeout=5 \
    -rss_limit_mb=1024 -max_len=8192 -artifact_prefix="build/fuzz/findings/$target-" "build/fuzz/corpus/$target" \
    "fuzz/corpus/$target" >"$log" 2>&1; then
    tail -n 60 "$log" >&2
    echo "scripts/fuzz.sh: $target: see $log" >&2
    return 255  # xargs starts no other
  fi
  echo "$target: $(tail -n 1 "$log")"
}
export -f fuzz
export seconds preset
echo "Fuzzing for $seconds s each"
ls fuzz/corpus | xargs -P "$(nproc)" -I{} bash -c 'fuzz {}'
