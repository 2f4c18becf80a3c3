#compdef zel-package

local -a candidates
candidates=("${(@f)$("${(Q)words[1]}" --complete "${(@Q)words[2,CURRENT]}" 2>/dev/null)}")
candidates=(${candidates:#})
if (( $#candidates )); then
    compadd -S '' -- ${(M)candidates:#*[=.,\[]}
    compadd -- ${candidates:#*[=.,\[]}
else
    _files
fi
