#!/usr/bin/env bash
# Installs what is missing, builds, and starts the host application on simulated projectors.
# Arguments are passed to the application. Without a display it saves pictures of all pages in
# out/tour instead. With --real as the first argument, the simulator serves the projectors in a
# separate process, over TCP, PJLink and serial lines.
set -euo pipefail
cd "$(dirname "$0")"

scripts/setup.sh
echo "Building (build/release)"
cmake --preset release -DADVANCEDCONTROL_BENCHMARKS=OFF >/dev/null
cmake --build --preset release

program=build/release/bin/advanced-control
if [ "${1:-}" = --real ]; then
  shift
  mkdir -p out
  rm -f out/real.json
  "$(dirname "$program")/advanced-control-simulator" --serial --write-profiles out/real.json &
  started=($!)
  # Both processes end together: when the window is closed, on Ctrl+C, or when this script is ended.
  trap 'kill "${started[@]}" 2>/dev/null && wait' EXIT
  for _ in $(seq 100); do
    [ -s out/real.json ] && break
    kill -0 "${started[0]}" || exit 1
    sleep 0.1
  done
  "$program" --profiles out/real.json "$@" &
  started+=($!)
  wait $!
  exit
fi
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
