#!/usr/bin/env bash
# Whether the files for the desktop and for software catalogs are valid, with their texts in all languages.
set -euo pipefail
cd "$(dirname "$0")/.."
made=$(mktemp -d)
trap 'rm -rf "$made"' EXIT
translations=(translations/*.ts)
cmake -DPACKAGING_DIR=packaging "-DTRANSLATIONS=${translations[*]}" -DMSGFMT=msgfmt -DOUTPUT_DIR="$made" \
  -P cmake/TranslatePackage.cmake
desktop-file-validate --warn-kde "$made"/*.desktop
appstreamcli validate --pedantic --strict --no-net "$made"/*.metainfo.xml
