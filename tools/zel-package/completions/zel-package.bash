# bash completion for zel-package                                          -*- shell-script -*-

# Never expands user input or the program's output: "compgen -W" would execute it.
_zel_package() {
    local line=${COMP_LINE:0:COMP_POINT} word i
    local -a words=()
    COMPREPLY=()

    # Bash splits words at "=" and ":"; join the parts not separated by spaces. The last word ends
    # at the cursor.
    for ((i = 0; i <= COMP_CWORD; i++)); do
        if ((i == 0)) || [[ $line == [[:space:]]* ]]; then
            line=${line#"${line%%[![:space:]]*}"}
            words+=('')
        fi
        word=${COMP_WORDS[i]}
        ((i < COMP_CWORD)) || word=$line
        words[-1]+=$word
        line=${line#"$word"}
    done

    # Remove one level of quotes.
    local quote=
    for i in "${!words[@]}"; do
        quote=
        case ${words[i]} in
        \'* | \"*)
            quote=${words[i]:0:1}
            words[i]=${words[i]#"$quote"}
            words[i]=${words[i]%"$quote"}
            ;;
        *) IFS= read words[i] <<<"${words[i]/#\~\//$HOME/}" ;;
        esac
    done

    # In a word with "=", bash only replaces the part after the last one.
    local current=${words[-1]} done=
    [[ $COMP_WORDBREAKS == *=* && $current == *[=:]* && -z $quote ]] && done=${current%"${current##*[=:]}"}
    while IFS= read -r word; do
        [[ $word == *[=.,\[] ]] && compopt -o nospace 2>/dev/null
        word=${word#"$done"}
        [[ -z $quote && $word == *[!A-Za-z0-9_.,=@+:/[\]-]* ]] && printf -v word %q "$word"
        COMPREPLY+=("$word")
    done < <("${words[0]}" --complete "${words[@]:1}" 2>/dev/null)
} && complete -o default -F _zel_package zel-package # without words: file names
