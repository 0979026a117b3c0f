#!/usr/bin/env bash
# Makes the Debian packages in build/package/packages, and checks them with lintian if it is
# installed.
set -euo pipefail
cd "$(dirname "$0")/.."

cmake --preset package >/dev/null
cmake --build --preset package
rm -rf build/package/packages
cpack --preset package
if command -v lintian >/dev/null; then
  echo "lintian"
  lintian --allow-root --fail-on error build/package/packages/*.deb
fi
ls -l build/package/packages/*.deb
