# bash completion for zel-package                                          -*- shell-script -*-

# The codes of the known languages, as the program itself lists them.
_zel_package_languages() {
    "$1" languages 2>/dev/null | while read -r code _; do
        [[ $code == code ]] || printf '%s\n' "$code"
    done
}

# The rules that validate can ignore, as the program itself lists them.
_zel_package_rules() {
    "$1" explain 2>/dev/null | while read -r id severity _; do
        [[ $severity == @(error|warning|note) && $id != manifest-malformed ]] && printf '%s\n' "$id"
    done
}

# Neither what is typed nor what the program prints is ever expanded: "compgen -W" would run it.
_zel_package() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local prefix= word
    local -a words=()
    COMPREPLY=()

    if ((COMP_CWORD == 1)); then
        words=(new show get validate format set publish explain languages robots --help --version)
    else
        case ${COMP_WORDS[1]}:$previous in
        *:--language) mapfile -t words < <(_zel_package_languages "${COMP_WORDS[0]}") ;;
        show:--format) words=(text json) ;;
        validate:--format) words=(text json sarif github) ;;
        validate:--color) words=(auto always never) ;;
        validate:--fail-on) words=(error warning note) ;;
        validate:--ignore)
            # The list so far stays in front of each word.
            [[ $current == *,* ]] && prefix=${current%,*},
            mapfile -t words < <(_zel_package_rules "${COMP_WORDS[0]}")
            ;;
        explain:explain)
            mapfile -t words < <(_zel_package_rules "${COMP_WORDS[0]}")
            words+=(manifest-malformed --help)
            ;;
        *:--uid | *:--name) return ;;
        *)
            [[ $current == -* ]] && case ${COMP_WORDS[1]} in
            new) words=(--uid --name --language --help) ;;
            show) words=(--language --format --help) ;;
            validate)
                words=(--format --fail-on --ignore --fix --unsafe-fixes --diff --config --baseline
                    --write-baseline --stdin-name --quiet --color --explain --help)
                ;;
            format) words=(--check --help) ;;
            set) words=(--edits --dry-run --help) ;;
            publish) words=(--output --help) ;;
            explain | get | languages | robots) words=(--help) ;;
            esac
            ;;
        esac
    fi

    # Without words of the program's own, complete file names: see "-o default" below.
    for word in "${words[@]}"; do
        [[ $prefix$word == "$current"* ]] && COMPREPLY+=("$prefix$word")
    done
} && complete -o default -F _zel_package zel-package
