#!/usr/bin/env bash
# Which lines and branches the tests reach: builds with the preset `coverage`, runs all tests, and holds what they
# reach against scripts/coverage.txt. Arguments go to ctest.
#
# A branch is one outcome of a condition, also of each part of `&&` and `||`. What no test can reach bears its reason in
# the source: "// unreachable: why", on the line or above it. A process that a test kills reports nothing, so what only
# such a process reaches counts as missed.
set -euo pipefail
cd "$(dirname "$0")/.."

for program in clang++ llvm-profdata llvm-cov; do
  command -v $program >/dev/null || { echo "$0 needs $program: apt-get install clang llvm" >&2; exit 1; }
done
echo "Building (build/coverage)"
cmake --preset coverage >/dev/null
cmake --build --preset coverage
rm -rf build/coverage/profiles
echo "Testing"
LLVM_PROFILE_FILE=$PWD/build/coverage/profiles/%4m.profraw ctest --preset coverage -j "$(nproc)" "$@" ||
  { echo "Tests failed: ctest --preset coverage --rerun-failed" >&2; exit 1; }
scripts/coverage.py build/coverage
