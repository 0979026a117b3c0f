#!/usr/bin/env bash
# The checks besides the tests under the sanitizers: floors, classes with too many members, an optimised build without
# warnings with its tests and benchmarks, mutants, calls that fail, the installed library, what goes into the packages,
# clang-tidy over the last changes, channels and fleet under the thread sanitizer, and a moment of each fuzz target. A
# check that fails says what to run to see it again.
set -euo pipefail
cd "$(dirname "$0")/.."

# check <what> <command line>: also tells the time that passed, and that of the processors.
TIMEFORMAT="  %0R s (processors: %0U s + %0S s)"
check() {
  echo "$1"
  time bash -euo pipefail -c "$2" || { echo "$1: failed. To see it again: $2" >&2; exit 1; }
}

export QT_QPA_PLATFORM=offscreen
jobs=$((2 * $(nproc)))  # many tests mostly wait
check "Floors" "scripts/check-floors.sh"
check "Size of classes" "scripts/members.py"
check "Packaging" "scripts/check-packaging.sh"
cmake --preset check >/dev/null
check "Optimised build (build/check): warnings are errors" "cmake --build --preset check"
# Both mostly wait.
check "Tests, optimised, and calls that fail" \
  "scripts/faults.py build/check 15 & ctest --preset check -j $jobs || failed=1; wait \$!; exit \${failed:-0}"
# The tests of mutants mostly wait.
check "Mutants of the last changes, and installed library" \
  "scripts/mutate.py --build build/check --changed HEAD~3 --files 'src/*' --sample 40 --seconds 60 --least 70 &
   cmake -DBUILD_DIR=$PWD/build/check -DSOURCE_DIR=$PWD -P scripts/CheckInstalled.cmake || failed=1
   wait \$!; exit \${failed:-0}"
check "Benchmarks for a moment" \
  "build/check/bin/advanced-control-bench --benchmark_min_time=0.01 --benchmark_filter='OpenDialog/type:5/code:30|RefreshPicture/ms:0' >/dev/null"
check "clang-tidy over the last changes" "scripts/tidy.py --since HEAD~3"
cmake --preset tsan >/dev/null
check "Build under the thread sanitizer (build/tsan)" "cmake --build --preset tsan --target device_tests fleet_tests"
check "Channels and fleet under the thread sanitizer, and fuzz targets for a moment" \
  "scripts/fuzz.sh 2 asan & ctest --preset tsan -j $jobs -R '^(device|fleet)_tests' || failed=1
   wait \$!; exit \${failed:-0}"
