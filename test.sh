#!/usr/bin/env bash
# Installs what is missing, builds with the address and undefined-behaviour sanitizers, runs all tests, and holds what
# they reached against scripts/coverage.txt. Arguments are passed to ctest; then what they reached is not looked at.
set -euo pipefail
cd "$(dirname "$0")"

TIMEFORMAT="  %0R s (processors: %0U s + %0S s)"
scripts/setup.sh
echo "Building (build/asan)"
cmake --preset asan >/dev/null
time cmake --build --preset asan || { echo "The build failed. To see it again: cmake --build --preset asan" >&2; exit 1; }
cmake --build --preset asan --target format-check ||
  { echo "Files are not formatted. To format them: cmake --build --preset asan --target format" >&2; exit 1; }
echo "Testing"
rm -rf build/asan/profiles
# Many tests mostly wait.
time ctest --preset asan -j $((2 * $(nproc))) "$@" ||
  { echo "Tests failed. To see them again: ctest --preset asan --rerun-failed" >&2; exit 1; }
[ $# -eq 0 ] || exit 0
echo "What the tests reached"
time scripts/coverage.py build/asan ||
  { echo "Too little was reached. To see it again: scripts/coverage.py build/asan" >&2; exit 1; }
