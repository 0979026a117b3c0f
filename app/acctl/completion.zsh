#compdef acctl
# Completes the words of acctl in zsh. The program itself knows what may follow.

local line
local -a candidates
for line in "${(@f)$(acctl complete "${(@Q)words[2,CURRENT-1]}" "${(Q)PREFIX}" 2> /dev/null)}"; do
  case $line in
    '') ;;
    '<files>') _files ;;
    '<folders>') _files -/ ;;
    *) candidates+=("$line") ;;
  esac
done
(($#candidates)) && compadd -- "${candidates[@]}"
