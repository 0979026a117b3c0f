# Completes the words of acctl in bash. The program itself knows what may follow.

# A word as the program gets it; nothing for one for which the shell would run something.
_acctl_word() {
  local word
  [[ $1 != *[\`\$]* ]] && eval "word=$1" 2>/dev/null && printf %s "$word"
}

# The words of the line. Without bash-completion, those that bash has split at = and : are joined.
_acctl_words() {
  if declare -F _init_completion > /dev/null; then
    _init_completion -n =:
    return
  fi
  local i word last=''
  words=()
  for ((i = 0; i <= COMP_CWORD; ++i)); do
    word=${COMP_WORDS[i]}
    if ((i > 0)) && [[ $word == [:=]* || $last == *[:=] ]]; then
      words[-1]+=$word
    else
      words+=("$word")
    fi
    last=$word
  done
  cword=$((${#words[@]} - 1)) cur=${words[-1]}
}

# Files, or with -d folders.
_acctl_files() {
  local IFS=$'\n' word
  word=$(_acctl_word "$cur") || word=${cur#[\"\']}  # its quote is still open
  COMPREPLY+=($(compgen "$1" -- "$word"))
  compopt -o filenames 2> /dev/null
}

_acctl() {
  local cur prev words cword line i
  _acctl_words || return
  local -a typed=()
  for ((i = 1; i < cword; ++i)); do typed+=("$(_acctl_word "${words[i]}")"); done
  local start=${cur#[\"\']}
  # Bash replaces only what stands behind the last of these.
  local split=${cur%"${cur##*[=:]}"}
  while IFS= read -r line; do
    case $line in
      '<files>') _acctl_files -f ;;
      '<folders>') _acctl_files -d ;;
      *)
        if [[ $cur == [\"\']* ]]; then
          COMPREPLY+=("$line")
        else
          line=$(printf %q "$line")
          COMPREPLY+=("${line#"$split"}")
        fi
        ;;
    esac
  done < <(acctl complete "${typed[@]}" "${start//\\/}" 2> /dev/null)
  if [[ ${#COMPREPLY[@]} -eq 1 && ${COMPREPLY[0]} == *= ]]; then compopt -o nospace 2> /dev/null; fi
} && complete -F _acctl acctl
