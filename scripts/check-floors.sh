#!/usr/bin/env bash
# A folder of src/ includes only folders below it. Programs include only what they share
# (app/profiles). The folders of the host application include only that of the projectors.
# No circle of files goes through more than one class. No file is longer than 350 lines.
set -euo pipefail
cd "$(dirname "$0")/../src"

declare -A below=(
  [toolkit]=""
  [device]=""
  [simulator]="device"
  [settings]="device"
  [i18n]="toolkit"
  [snapshots]="device settings i18n"
  [fleet]="device simulator settings i18n snapshots"
  [resources]="toolkit settings"
  [pages]="toolkit device settings i18n resources"
  [host]="toolkit device settings i18n snapshots resources pages"
)

wrong=0
for folder in */; do
  folder=${folder%/}
  [ -n "${below[$folder]+known}" ] || { echo "src/$folder has no floor"; exit 1; }
  allowed="$folder ${below[$folder]}"
  while IFS=: read -r file line include; do
    used=${include#*\"}
    used=${used%%/*}
    [[ $used == *Export.h\" ]] && continue  # made by the build
    [[ $used == Namespace.h\" ]] && continue  # stands above all folders
    case " $allowed " in
      *" $used "*) ;;
      *)
        echo "src/$file:$line: ${include#*\#} is above $folder"
        wrong=1
        ;;
    esac
  done < <(grep -rn --include='*.h' --include='*.cpp' --include='*.def' '^#include "[^"]*' "$folder")
done
cd ../app
for folder in */; do
  folder=${folder%/}
  if grep -rnE --include='*.h' --include='*.cpp' '^#include "app/' "$folder" |
    grep -vE "#include \"app/($folder|profiles)/"; then
    echo "app/$folder includes another program's"
    wrong=1
  fi
done
# The folders of the host application include none of each other except projectors and presets; the
# windows at the top level combine them.
for folder in desktop/*/; do
  folder=${folder%/}
  if grep -rnE --include='*.h' --include='*.cpp' '^#include "app/desktop/' "$folder" |
    grep -vE "#include \"app/($folder|desktop/(projectors|presets))/|#include \"app/desktop/(Mnemonic|Modal)\.h\""; then
    echo "app/$folder includes another folder of the host application"
    wrong=1
  fi
done
cd ..
scripts/circles.py || wrong=1
while read -r lines file; do
  echo "$file has $lines lines, more than 350"
  wrong=1
done < <(find src app tests bench examples fuzz integrations scripts -type f \
  \( -name '*.cpp' -o -name '*.h' -o -name '*.def' -o -name '*.py' -o -name '*.sh' \) -exec wc -l {} + |
  awk '$1 > 350 && $2 != "total"')
exit $wrong
