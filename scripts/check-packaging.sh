#!/usr/bin/env bash
# Whether the files for the desktop and for software catalogs are valid.
set -euo pipefail
cd "$(dirname "$0")/../packaging"
desktop-file-validate --warn-kde ./*.desktop
appstreamcli validate --pedantic --strict --no-net ./*.metainfo.xml
