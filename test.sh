#!/usr/bin/env bash
# Installs what is missing, builds with the address and undefined-behaviour sanitizers, and runs all
# tests. Arguments are passed to ctest.
set -euo pipefail
cd "$(dirname "$0")"

scripts/setup.sh
echo "Building (build/asan)"
cmake --preset asan >/dev/null
cmake --build --preset asan
cmake --build --preset asan --target format-check
echo "Testing"
# Many tests mostly wait.
ctest --preset asan -j $((2 * $(nproc))) "$@" ||
  { echo "Tests failed. To see them again: ctest --preset asan --rerun-failed" >&2; exit 1; }
