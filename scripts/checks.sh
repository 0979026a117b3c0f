#!/usr/bin/env bash
# The checks besides the tests: floors, the release build without warnings, acctl on it, the
# installed library, the benchmarks, clang-tidy, channels and fleet under the thread sanitizer, and
# a short run of the fuzz targets.
set -euo pipefail
cd "$(dirname "$0")/.."

echo "Checking the floors"
scripts/check-floors.sh

echo "Building (build/check): optimised, warnings are errors"
# With the linker options that some distributions use for all packages.
cmake --preset release -B build/check -DADVANCEDCONTROL_TESTS=OFF \
  -DCMAKE_SHARED_LINKER_FLAGS=-Wl,-Bsymbolic-functions \
  -DCMAKE_EXE_LINKER_FLAGS=-Wl,-Bsymbolic-functions >/dev/null
cmake --build build/check

echo "Testing acctl as it is released: calls are made to fail, which a sanitizer does not allow"
cmake -DADVANCEDCONTROL_TESTS=ON build/check >/dev/null
cmake --build build/check --target acctl_tests failing_calls
ctest --test-dir build/check -R '^acctl_tests$' --output-on-failure

echo "Checking the installed library"
cmake -DBUILD_DIR="$PWD/build/check" -DSOURCE_DIR="$PWD" -P scripts/CheckInstalled.cmake

echo "Running the benchmarks for a moment"
QT_QPA_PLATFORM=offscreen build/check/bin/advanced-control-bench --benchmark_min_time=0.01 \
  --benchmark_filter='OpenDialog|RefreshPicture/ms:0' >/dev/null

echo "clang-tidy over the last changes; scripts/long.sh looks at everything"
scripts/tidy.py build/check --since HEAD~3

echo "Building (build/tsan) and testing channels and fleet under the thread sanitizer"
cmake --preset tsan >/dev/null
cmake --build --preset tsan --target device_tests fleet_tests
QT_QPA_PLATFORM=offscreen build/tsan/bin/device_tests --gtest_brief=1
build/tsan/bin/fleet_tests --gtest_brief=1

scripts/fuzz.sh 5
