#!/usr/bin/env bash
# A folder of src/ includes only what stands below it; of the programs, each knows only what they share
# (app/profiles), and of the host application's rooms, each knows only the projectors.
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
  [host]="toolkit device settings i18n resources pages"
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
# The rooms of the host application know nothing of each other but the projectors; the windows at its top put
# them together.
for room in desktop/*/; do
  room=${room%/}
  if grep -rnE --include='*.h' --include='*.cpp' '^#include "app/desktop/' "$room" |
    grep -vE "#include \"app/($room|desktop/projectors)/|#include \"app/desktop/(Mnemonic|Modal)\.h\""; then
    echo "app/$room includes another room's"
    wrong=1
  fi
done
exit $wrong
