#!/usr/bin/env bash
# Installs what is missing, builds, and starts the host application on simulated projectors.
# Arguments go to the application; without a display it saves a pictured tour to out/tour instead.
set -euo pipefail
cd "$(dirname "$0")"

scripts/setup.sh
echo "Building (build/release)"
cmake --preset release -DADVANCEDCONTROL_TESTS=OFF -DADVANCEDCONTROL_BENCHMARKS=OFF >/dev/null
cmake --build --preset release

program=build/release/bin/advanced-control
if [ $# -gt 0 ]; then
  exec "$program" "$@"
elif [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  echo "Starting $program"
  exec "$program"
else
  echo "No display: saving pictures of every page to out/tour"
  mkdir -p out/tour
  exec "$program" --tour out/tour
fi
