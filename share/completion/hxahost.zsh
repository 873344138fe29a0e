#compdef hxahost
# Completion of hxahost in zsh. The program itself says which words may follow; where it says none, files may.
local -a before candidates
before=("${(@Q)words[2,CURRENT-1]}")
if [[ $PREFIX == --*=* ]]; then
  before+=("${PREFIX%%=*}")
  compset -P 1 '*='
fi
candidates=(${(f)"$("${(Q)words[1]}" complete "${before[@]}" 2>/dev/null)"})
[[ $PREFIX == -* ]] || candidates=(${candidates:#-*})
if (( $#candidates )); then
  compadd -a candidates
else
  _files
fi
