#!/usr/bin/env bash
# clang-tidy over the code of a configured build: scripts/tidy.sh <build folder>.
set -euo pipefail
cd "$(dirname "$0")/.."
find src app -name '*.cpp' -print0 |
  xargs -0 -n 1 -P "$(nproc)" clang-tidy --quiet -p "$1" 2>/dev/null
