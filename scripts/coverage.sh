#!/usr/bin/env bash
# Which lines and branches the tests reach: builds with the preset `coverage`, runs all tests, and holds what they
# reach against scripts/coverage.txt. Arguments go to ctest. The report is build/coverage/report/index.html.
#
# Not counted are branches that only an exception takes and those that the compiler itself calls unreachable. What no
# test can reach bears its reason in the source: GCOVR_EXCL_LINE or GCOVR_EXCL_BR_LINE, and why. A process that a test
# kills reports nothing, so what only such a process reaches counts as missed.
set -euo pipefail
cd "$(dirname "$0")/.."

again="see build/coverage/report/index.html, and run scripts/coverage.sh again"
command -v gcovr >/dev/null || { echo "scripts/coverage.sh needs gcovr: apt-get install gcovr" >&2; exit 1; }
echo "Building (build/coverage)"
cmake --preset coverage >/dev/null
cmake --build --preset coverage
find build/coverage -name '*.gcda' -delete
echo "Testing"
ctest --preset coverage -j "$(nproc)" "$@" ||
  { echo "Tests failed: ctest --preset coverage --rerun-failed" >&2; exit 1; }
mkdir -p build/coverage/report
gcovr -j "$(nproc)" --root . --object-directory build/coverage --filter src/ --filter app/ \
  --exclude-throw-branches --exclude-unreachable-branches \
  --html-details build/coverage/report/index.html --csv build/coverage/report/files.csv build/coverage

# A file counts where its path first matches.
awk -F, -v again="$again" '
  NR == FNR {
    if ($0 !~ /^(#|$)/) {
      split($0, word, / +/)
      pattern[++count] = word[1]; least[count, "line"] = word[2]; least[count, "branch"] = word[3]
      aim[count] = word[4]
    }
    next
  }
  FNR > 1 {
    for (i = 1; i <= count && $1 !~ pattern[i]; ++i) {}
    if (i > count) { print $1 " is in no group of scripts/coverage.txt"; failed = 1; next }
    total[i, "line"] += $2; covered[i, "line"] += $3
    total[i, "branch"] += $5; covered[i, "branch"] += $6
  }
  function share(i, kind) {
    return total[i, kind] ? 100 * covered[i, kind] / total[i, kind] : 100
  }
  END {
    printf "%-40s %7s %9s %6s\n", "files", "lines", "branches", "aim"
    for (i = 1; i <= count; ++i) {
      printf "%-40s %5.1f %% %7.1f %% %4s %%\n", pattern[i], share(i, "line"), share(i, "branch"), aim[i]
      if (share(i, "line") < least[i, "line"]) {
        print pattern[i] ": lines are below " least[i, "line"] " %: " again; failed = 1
      }
      if (share(i, "branch") < least[i, "branch"]) {
        print pattern[i] ": branches are below " least[i, "branch"] " %: " again; failed = 1
      }
    }
    exit failed
  }' scripts/coverage.txt build/coverage/report/files.csv
