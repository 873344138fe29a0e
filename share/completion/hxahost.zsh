#compdef hxahost
# Completion of hxahost in zsh. The program itself says which words may follow; where it says none, files may.
local -a candidates
candidates=(${(f)"$("${(Q)words[1]}" complete "${(@Q)words[2,CURRENT-1]}" 2>/dev/null)"})
[[ $PREFIX == -* ]] || candidates=(${candidates:#-*})
if (( $#candidates )); then
  compadd -a candidates
else
  _files
fi
