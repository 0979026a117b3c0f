#!/usr/bin/env bash
# Makes the Debian packages in build/package/packages with a list of what is in them (SPDX), and checks them with lintian
# if it is installed. Two runs on the same commit make the same packages, wherever they are built.
set -euo pipefail
cd "$(dirname "$0")/.."

SOURCE_DATE_EPOCH="${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct)}"
export SOURCE_DATE_EPOCH
umask 022  # of the packages' folders
cmake --preset package >/dev/null
cmake --build --preset package
rm -rf build/package/packages
cpack --preset package
scripts/sbom.py build/package/packages
if command -v lintian >/dev/null; then
  echo "lintian"
  # No bug of a distribution asks for these packages, and CPack adds calls of ldconfig to any library's.
  lintian --allow-root --pedantic --fail-on warning \
    --suppress-tags initial-upload-closes-no-bugs,maintscript-calls-ldconfig build/package/packages/*.deb
fi
ls -l build/package/packages
