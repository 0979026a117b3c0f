#!/usr/bin/env bash
# What takes too long for every change: fuzzing on the kept corpus, random walks over the host application and the
# dialogs of every model, kills of both ends, and calls that fail; then every page in every language, each file
# compiled without the headers of others, clang-tidy over everything, what the tests reach, the checks of a release,
# bridges with ten thousand projectors and with broken brokers, whether memory grows in a hundred sweeps of a fleet, and
# whether the tests notice four of five mutants of what was changed since the last run. Adds a line to the table in
# docs/reliability.md.
# Usage: scripts/long.sh [time, such as 2h or 20m]
#
# A quarter of the time goes to each of the first four. The sanitizers watch the walks; PRESET=dev takes another build.
# What was found is told at the end, with what to run to see it again, and ends the script with 1.
set -uo pipefail
cd "$(dirname "$0")/.."

case "${1:-2h}" in
  *h) seconds=$((${1%h} * 3600)) ;;
  *m) seconds=$((${1%m} * 60)) ;;
  *) seconds="${1%s}" ;;
esac
preset="${PRESET:-asan}"
bin="build/$preset/bin"
part=$((seconds / 4))
logs=build/long
findings=()
mkdir -p "$logs"

echo "Building (build/$preset)"
cmake --preset "$preset" >/dev/null && cmake --build --preset "$preset" || exit 1
echo "Building (build/check)"
cmake --preset check >/dev/null && cmake --build --preset check || exit 1

targets=$(ls fuzz/corpus | wc -l)
if ! scripts/fuzz.sh $((part * $(nproc) / targets)) | tee "$logs/fuzz.log"; then
  findings+=("fuzzing: scripts/fuzz.sh, and build/fuzz/findings")
fi
runs=$(awk '/ Done [0-9]+ runs/ { for (i = 1; i < NF; ++i) if ($i == "Done") sum += $(i + 1) } END { print sum + 0 }' "$logs/fuzz.log")

export QT_QPA_PLATFORM=offscreen
actions=0
# walk <name> <program> <variables>...: adds the actions that it made.
walk() {
  local name="$1" program="$2" made
  shift 2
  if env "$@" "$bin/$program" >"$logs/$name.log" 2>&1; then
    made=$(grep -c '^\[       OK' "$logs/$name.log")
    actions=$((actions + made * each))
  else
    findings+=("a walk: $* $bin/$program, and $logs/$name.log")
  fi
}
echo "Walking for $part s"
end=$((SECONDS + part))
seed=$(date +%s)
while [ $SECONDS -lt $end ] && [ ${#findings[@]} -eq 0 ]; do
  each=5000 walk "walk" walk_tests "WALK_SEED=$seed" WALK_ACTIONS=5000
  [ $SECONDS -lt $end ] && each=1000 walk "soak" soak_tests "SOAK_SEED=$seed" SOAK_ACTIONS=1000
  seed=$((seed + 1))
done

echo "Killing for $part s"
if ! kills=$(scripts/kills.py "$bin" "$part" "$seed" 2>"$logs/kills.log"); then
  findings+=("kills: scripts/kills.py $bin $part $seed, and $logs/kills.log")
fi

echo "Failing calls for $part s"
faults=$(scripts/faults.py build/check "$part" "$seed" 2>"$logs/faults.log") ||
  findings+=("calls that fail: $(tail -n 1 "$logs/faults.log"), and $logs/faults.log")

echo "Every page in every language"
for screen in "1024x768 1" "1920x1080 2" "1920x1080 3"; do
  read -r size scale <<<"$screen"
  if ! TEST_LANGUAGES=all TEST_SCREEN=$size QT_SCALE_FACTOR=$scale "$bin/sweep_tests" \
    '--gtest_filter=*NothingIsClipped*' >"$logs/languages-$size-$scale.log" 2>&1; then
    findings+=("a text without room: TEST_LANGUAGES=all TEST_SCREEN=$size QT_SCALE_FACTOR=$scale $bin/sweep_tests, and $logs/languages-$size-$scale.log")
  fi
done

# further <what> <command line>
further() {
  echo "$1"
  bash -euo pipefail -c "$2" >"$logs/${1// /-}.log" 2>&1 || findings+=("$1: $2, and $logs/${1// /-}.log")
}
further "each file alone" "cmake --preset dev && cmake --build --preset dev"
further "clang-tidy over everything" "scripts/tidy.py --deep"
further "coverage" "scripts/coverage.sh"
further "the checks of a release" "scripts/check-release.sh"

further "a bridge with ten thousand projectors" "scripts/bridge-load.py build/check/bin"
further "bridges through failures" "$bin/bridge_program_tests --gtest_filter='BridgeProgram.*' --gtest_repeat=10"
further "a hundred sweeps of a fleet" \
  "! build/check/bin/fleet-bench --benchmark_filter=ManySweeps 2>&1 | tee /dev/stderr | grep -q 'ERROR OCCURRED'"

# Of the lines changed since the last run that is in the table.
last=$(awk -F'|' '/^\| 20/ { commit = $3 } END { gsub(/ /, "", commit); print commit }' docs/reliability.md)
git cat-file -e "$last" 2>/dev/null || last=HEAD~20
further "forty mutants" "scripts/mutate.py --changed $last --sample 40 --least 80"
sed -n '/^Alive/,$p' "$logs/forty-mutants.log"

said=none
[ ${#findings[@]} -eq 0 ] || said="${#findings[@]}, to be mended"
printf "| %s | %s | %s | %d s | %'d | %'d | %'d | %'d | %s |\n" "$(date -u +%F)" "$(git rev-parse --short HEAD)" "$preset" \
  "$seconds" "$runs" "$actions" "${kills:-0}" "${faults%% *}" "$said" | tee -a docs/reliability.md
[ ${#findings[@]} -eq 0 ] && exit
printf 'Found by %s\n' "${findings[@]}" >&2
exit 1
