# Completion of hxahost in bash. The program itself says which words may follow; where it says none, files may.
_hxahost() {
  local word=${COMP_WORDS[COMP_CWORD]} words
  [ "$word" != = ] || word=''
  words=$("${COMP_WORDS[0]}" complete "${COMP_WORDS[@]:1:COMP_CWORD-1}" 2>/dev/null)
  [[ $word == -* ]] || words=$(grep -v '^-' <<<"$words")
  if [ -n "$words" ]; then
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
  else
    mapfile -t COMPREPLY < <(compgen -f -- "$word")
  fi
}
complete -o filenames -F _hxahost hxahost
