# Completion of hxahost's commands and options in bash. Both are what --help of this very program lists.
_hxahost() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} program=${COMP_WORDS[0]}
  COMPREPLY=()
  case $before in
    --class)
      mapfile -t COMPREPLY < <(compgen -W "$("$program" classes 2>/dev/null | sed -n 's/^ *\(KVRSG_[A-Za-z_]*\).*/\1/p')" -- "$word")
      return
      ;;
    --directory)
      mapfile -t COMPREPLY < <(compgen -d -- "$word")
      return
      ;;
    --plugin | --output | --log | --record | --replay)
      mapfile -t COMPREPLY < <(compgen -f -- "$word")
      return
      ;;
  esac
  local words='' command=("${COMP_WORDS[1]-}")
  [ "$COMP_CWORD" -gt 1 ] || command=()
  [ "${command[0]-}" = bundle ] && [ "$COMP_CWORD" -gt 2 ] && command+=("${COMP_WORDS[2]}")
  if [ "$COMP_CWORD" -eq 1 ] || [[ "$before" = bundle ]]; then
    words=$("$program" "${command[@]}" --help 2>/dev/null | sed -n '/^Subcommands:/,/^$/s/^  \([a-z]*\).*/\1/p')
  elif [[ $word == -* ]]; then
    words=$("$program" "${command[@]}" --help 2>/dev/null | grep -o '^ *\(-[a-z],\)\?--[a-z-]*' | sed 's/.*--/--/')
  fi
  if [ -n "$words" ]; then
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
  else
    mapfile -t COMPREPLY < <(compgen -f -- "$word")
  fi
}
complete -o filenames -F _hxahost hxahost
