#!/usr/bin/env bash
# Whether what would be released is sound: the packages pass lintian, a second build in another folder with another time
# zone, language and umask makes the same ones, and the libraries still serve what was built with the last release.
# Usage: scripts/check-release.sh [COMMIT, instead of the last tag]
#
# Takes four builds without a cache. It needs lintian and abigail-tools.
set -euo pipefail
cd "$(dirname "$0")/.."

for program in lintian abidiff; do
  command -v "$program" >/dev/null || { echo "$0 needs $program: apt-get install lintian abigail-tools" >&2; exit 1; }
done
echo "Making the packages"
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
export SOURCE_DATE_EPOCH CCACHE_DISABLE=1
rm -rf build/package
scripts/package.sh

other=build/reproduced/somewhere/else
git worktree remove --force "$other" 2>/dev/null || true
trap 'git worktree remove --force "$other" 2>/dev/null || true' EXIT
git worktree add --quiet --detach "$other" HEAD
echo "Making them again ($other)"
(cd "$other" && umask 077 && TZ=Pacific/Auckland LC_ALL=C scripts/package.sh >/dev/null)
for package in build/package/packages/*.deb; do
  cmp "$package" "$other/build/package/packages/${package##*/}" ||
    { echo "${package##*/} differs: diffoscope shows where" >&2; exit 1; }
done

if [ $# -gt 0 ] || git describe --tags >/dev/null 2>&1; then
  scripts/check-abi.sh "$@"
else
  echo "The libraries are not compared: no release has a tag yet"
fi
