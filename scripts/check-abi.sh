#!/usr/bin/env bash
# Whether programs that were built with the libraries of an earlier state still run with those of this one: functions and
# types that users see, compared by abidiff. Usage: scripts/check-abi.sh [COMMIT, instead of the last tag]
#
# It needs abigail-tools. What was only added is no break.
set -euo pipefail
cd "$(dirname "$0")/.."

since="${1:-$(git describe --tags --abbrev=0 2>/dev/null || true)}"
[ -n "$since" ] || {
  echo "No release has a tag yet. To compare with a commit: $0 HEAD~50. To tag a release: git tag -a v1.0.0" >&2
  exit 2
}
command -v abidiff >/dev/null || { echo "$0 needs abidiff: apt-get install abigail-tools" >&2; exit 1; }
libraries="ProjectorCommon ProjectorSettings ProjectorFleet AdvancedControl"
then=build/abi/then
git worktree remove --force "$then" 2>/dev/null || true
trap 'git worktree remove --force "$then" 2>/dev/null || true' EXIT
git worktree add --quiet --detach "$then" "$since"
for source in . "$then"; do
  into=build/abi/$([ "$source" = . ] && echo now || echo before)
  cmake -S "$source" -B "$into" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DADVANCEDCONTROL_TESTS=OFF \
    -DADVANCEDCONTROL_BENCHMARKS=OFF -DADVANCEDCONTROL_PRECOMPILE=ON -DADVANCEDCONTROL_COMBINE=ON >/dev/null
  # A library that the earlier state does not have is not compared.
  for library in $libraries; do
    rm -f "$into/bin/lib$library.so"*
    if [ "$source" = . ] || grep -q "^build bin/lib$library.so" "$into/build.ninja"; then
      cmake --build "$into" --target "$library" >"build/abi/$library.log" ||
        { echo "$library does not build in $source: see build/abi/$library.log" >&2; exit 1; }
    fi
  done
done
broken=0
for library in $libraries; do
  before=build/abi/before/bin/lib$library.so
  [ -e "$before" ] || { echo "$library is new"; continue; }
  if abidiff --no-added-syms --headers-dir1 "$then/src" --headers-dir2 src \
    --drop-private-types "$before" "build/abi/now/bin/lib$library.so" >"build/abi/$library.txt"; then
    echo "$library: compatible with $since"
  else
    echo "$library: not compatible with $since, see build/abi/$library.txt"
    grep 'changes summary' "build/abi/$library.txt" || true
    broken=1
  fi
done
exit $broken
