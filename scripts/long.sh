#!/usr/bin/env bash
# What takes too long for every change. Usage: scripts/long.sh [TIME, such as 2h or 20m] [PART...]
#
# A quarter of the time goes to each of the first four parts, and a line about them is added to the table in
# docs/reliability.md. The others take what they need, a few hours altogether. Without PART, all of them run:
#
#   fuzzing    every fuzz target, on the kept corpus
#   walks      random actions in the host application and in the dialogs of every model
#   kills      of acctl and of the simulator
#   faults     one call fails in each run
#   languages  every page in every language has room, on three screens
#   alone      each file is compiled without the headers of others
#   tidy       clang-tidy with the analyzer, over everything
#   release    the checks of a release
#   load       a bridge with ten thousand projectors
#   bridges    bridges through failures, ten times
#   sweeps     whether memory grows in a hundred sweeps of a fleet
#   mutants    whether the tests notice four of five mutants of what was changed since they last did
#
# The sanitizers watch the walks; PRESET=dev takes another build. What was found is said at the end, with what to run
# to see it again, and ends the script with 1.
set -uo pipefail
cd "$(dirname "$0")/.." || exit

set -- "${1:-2h}" "${@:2}"
case $1 in
  *h) seconds=$((${1%h} * 3600)) ;;
  *m) seconds=$((${1%m} * 60)) ;;
  *s) seconds=${1%s} ;;
  *) sed -n '2,/^set/ s/^# \{0,1\}//p' "$0" >&2; exit 2 ;;
esac
shift
timed="fuzzing walks kills faults"
others="languages alone tidy release load bridges sweeps mutants"
wanted="${*:-$timed $others}"
for part in $wanted; do
  [[ " $timed $others " == *" $part "* ]] || { echo "$part is none of: $timed $others" >&2; exit 2; }
done
preset="${PRESET:-asan}"
bin="build/$preset/bin"
share=$((seconds / 4))
longest=$((share + 600))  # until a program counts as hanging
logs=build/long
findings=()
commit=$(git rev-parse --short HEAD)
runs=0 actions=0 kills=0 faults=0
export QT_QPA_PLATFORM=offscreen
mkdir -p "$logs"

# further <part> <command line>: what only succeeds or fails.
further() {
  timeout 6h bash -euo pipefail -c "$2" >"$logs/$1.log" 2>&1 || findings+=("$1: $2; see $logs/$1.log")
}

run_fuzzing() {
  scripts/fuzz.sh $((share * $(nproc) / $(ls fuzz/corpus | wc -l))) | tee "$logs/fuzz.log" ||
    findings+=("fuzzing: scripts/fuzz.sh; see build/fuzz/findings")
  runs=$(awk '/ Done [0-9]+ runs/ { for (i = 1; i < NF; ++i) if ($i == "Done") sum += $(i + 1) } END { print sum + 0 }' "$logs/fuzz.log")
}

# walk <program> <prefix of its variables> <actions of each of its tests>
walk() {
  local variables=("$2_SEED=$seed" "$2_ACTIONS=$3")
  timeout "$longest" env "${variables[@]}" "$bin/$1" >"$logs/$1.log" 2>&1 || {
    findings+=("walks: ${variables[*]} $bin/$1; see $logs/$1.log")
    return 1
  }
  actions=$((actions + $3 * $(grep -c '^\[       OK' "$logs/$1.log")))
}
run_walks() {
  local end=$((SECONDS + share)) seed
  seed=$(date +%s)
  while [ $SECONDS -lt $end ]; do
    walk walk_tests WALK 5000 || break
    [ $SECONDS -ge $end ] || walk soak_tests SOAK 1000 || break
    seed=$((seed + 1))
  done
}

run_kills() {
  local seed=$RANDOM
  kills=$(timeout "$longest" scripts/kills.py "$bin" "$share" "$seed" 2>"$logs/kills.log") ||
    findings+=("kills: scripts/kills.py $bin $share $seed; see $logs/kills.log")
  kills=${kills:-0}
}

run_faults() {
  faults=$(timeout "$longest" scripts/faults.py build/check "$share" $RANDOM 2>"$logs/faults.log") ||
    findings+=("faults: $(tail -n 1 "$logs/faults.log"); see $logs/faults.log")
  faults=${faults%% *} faults=${faults:-0}  # "12 of 3456 points"
}

run_languages() {
  local screen name
  for screen in "TEST_SCREEN=1024x768 QT_SCALE_FACTOR=1" "TEST_SCREEN=1920x1080 QT_SCALE_FACTOR=2" \
    "TEST_SCREEN=1920x1080 QT_SCALE_FACTOR=3"; do
    name=${screen//[A-Z_=]/}
    further "languages-${name/ /-}" \
      "TEST_LANGUAGES=all $screen $bin/sweep_tests --gtest_filter='*NothingIsClipped*'"
  done
}

run_alone() { further alone "cmake --preset dev && cmake --build --preset dev"; }
run_tidy() { further tidy "scripts/tidy.py --deep"; }
run_release() { further release "scripts/check-release.sh"; }
run_load() { further load "scripts/bridge-load.py build/check/bin"; }
run_bridges() { further bridges "$bin/bridge_program_tests --gtest_filter='BridgeProgram.*' --gtest_repeat=10"; }
run_sweeps() {
  further sweeps "build/check/bin/fleet-bench --benchmark_filter=ManySweeps 2>&1 | tee $logs/figures.log; grep -q ManySweeps/ $logs/figures.log; ! grep 'ERROR OCCURRED' $logs/figures.log"
}

run_mutants() {
  local kept="$logs/mutants.commit" last
  last=$(cat "$kept" 2>/dev/null) && git cat-file -e "$last" 2>/dev/null || last=HEAD~20
  further mutants "scripts/mutate.py --changed $last --sample 40 --least 80 && echo $commit >$kept"
  sed -n '/^Alive/,$p' "$logs/mutants.log"
}

builds="$preset check"
[[ " $wanted " != *" mutants "* ]] || builds+=" dev"
for build in $builds; do
  echo "Building (build/$build)"
  cmake --preset "$build" >/dev/null && cmake --build --preset "$build" || exit 1
done
for part in $wanted; do
  echo "$part ($(date +%T))"
  "run_$part"
done

said=none
[ ${#findings[@]} -eq 0 ] || said="${#findings[@]}, to be mended"
if [ $((runs + actions + kills + faults)) -gt 0 ]; then
  printf "| %s | %s | %s | %d s | %'d | %'d | %'d | %'d | %s |\n" "$(date -u +%F)" "$commit" \
    "$preset" "$seconds" "$runs" "$actions" "$kills" "$faults" "$said" | tee -a docs/reliability.md
fi
[ ${#findings[@]} -eq 0 ] && exit
printf 'Found by %s\n' "${findings[@]}" >&2
exit 1
