#!/usr/bin/env bash
# Installs what is missing, builds with the address and undefined-behaviour sanitizers, and runs all
# tests. Arguments are passed to ctest.
set -euo pipefail
cd "$(dirname "$0")"

TIMEFORMAT="  %0R s (processors: %0U s + %0S s)"
scripts/setup.sh
echo "Building (build/asan)"
cmake --preset asan >/dev/null
time cmake --build --preset asan
cmake --build --preset asan --target format-check
echo "Testing"
# Many tests mostly wait.
time ctest --preset asan -j $((2 * $(nproc))) "$@" ||
  { echo "Tests failed. To see them again: ctest --preset asan --rerun-failed" >&2; exit 1; }
