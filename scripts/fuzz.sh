#!/usr/bin/env bash
# Runs each fuzz target for a while on its corpus, with what earlier runs found worth keeping.
# Usage: scripts/fuzz.sh [seconds]
#
# An input that breaks something is left in build/fuzz/findings; once the fault is mended it goes
# into fuzz/corpus/<target>.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds="${1:-5}"

echo "Building the fuzz targets (build/fuzz)"
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz
mkdir -p build/fuzz/findings
for corpus in fuzz/corpus/*/; do
  target="$(basename "$corpus")"
  grown="build/fuzz/corpus/$target"
  log="build/fuzz/$target.log"
  mkdir -p "$grown"
  echo "Fuzzing $target for $seconds s"
  if ! "build/fuzz/bin/fuzz-$target" -max_total_time="$seconds" -timeout=5 -rss_limit_mb=1024 \
    -max_len=8192 -artifact_prefix="build/fuzz/findings/$target-" "$grown" "$corpus" >"$log" 2>&1; then
    tail -n 60 "$log" >&2
    echo "scripts/fuzz.sh: $target: see $log" >&2
    exit 1
  fi
  tail -n 1 "$log"
done
