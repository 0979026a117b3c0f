#!/usr/bin/env bash
# The checks besides the tests under the sanitizers: floors, classes with too many members, an optimised build without
# warnings with its tests and benchmarks, mutants, calls that fail, the installed library, what goes into the packages,
# clang-tidy over the last changes, channels and fleet under the thread sanitizer, and a moment of each fuzz target. A
# check that fails says what to run to see it again.
set -euo pipefail
cd "$(dirname "$0")/.."

# try <command line>: a failure says how to see it again.
try() { bash -euo pipefail -c "$1" || { echo "Failed. To see it again: $1" >&2; return 1; }; }

# both <command line> <command line>: at once, since both mostly wait.
both() {
  local failed=0 first
  try "$1" & first=$!
  try "$2" || failed=1
  wait "$first" || failed=1
  return "$failed"
}

# check <what> <command>: also tells the time that passed, and that of the processors.
TIMEFORMAT="  %0R s (processors: %0U s + %0S s)"
check() {
  echo "$1"
  time "${@:2}" || { echo "$1: failed" >&2; exit 1; }
}

jobs=$((2 * $(nproc)))  # many tests mostly wait
check "Floors" try "scripts/check-floors.sh"
check "Size of classes" try "scripts/members.py"
check "Packaging" try "scripts/check-packaging.sh"
cmake --preset check >/dev/null
check "Optimised build (build/check): warnings are errors" try "cmake --build --preset check"
check "Tests, optimised, and calls that fail" both \
  "scripts/faults.py build/check 15" \
  "ctest --preset check -j $jobs"
check "Mutants of the last changes, and installed library" both \
  "scripts/mutate.py --build build/check --changed HEAD~3 --files 'src/*' --sample 40 --seconds 60 --least 70" \
  "QT_QPA_PLATFORM=offscreen cmake -DBUILD_DIR=$PWD/build/check -DSOURCE_DIR=$PWD -P scripts/CheckInstalled.cmake"
check "Benchmarks for a moment" try \
  "build/check/bin/advanced-control-bench --benchmark_min_time=0.01 --benchmark_filter='OpenDialog/type:5/code:30|RefreshPicture/ms:0' >/dev/null"
check "clang-tidy over the last changes" try "scripts/tidy.py --since HEAD~3"
cmake --preset tsan >/dev/null
check "Build under the thread sanitizer (build/tsan)" try "cmake --build --preset tsan --target device_tests fleet_tests"
check "Channels and fleet under the thread sanitizer, and fuzz targets for a moment" both \
  "scripts/fuzz.sh 2 asan" \
  "ctest --preset tsan -j $jobs -R '^(device|fleet)_tests'"
