#!/bin/bash
# Completes words in bash, zsh and fish, including hostile ones, which must not be evaluated.
# Usage: completion_test.sh COMPLETIONS_DIR PROGRAM WORK_DIR FILES_DIR

set -u
scripts=$1
PATH=${2%/*}:$PATH
rm -rf "$3" && mkdir -p "$3" && cd "$3" || exit 1
cp "$4"/set.xml . || exit 1
source "$scripts/zel-package.bash"
failures=0

in_bash() {
    COMP_LINE=$1 COMP_POINT=${#1}
    # Splits like bash: at spaces, and around "=" and ":".
    mapfile -t COMP_WORDS < <(sed -E 's/[=:]+/ & /g; s/  +/ /g; y/ /\n/' <<<"$1")
    [[ $1 == *[=:] ]] && unset 'COMP_WORDS[-1]'
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    _zel_package
    printf '%s\n' "${COMPREPLY[@]-}"
}

in_zsh() {
    zsh -f -c '
        compadd() { while [[ $1 != -- ]]; do shift; done; shift; print -l -- "$@"; }
        _files() {}
        words=(${(s: :)1}); [[ $1 == *" " ]] && words+=("")
        CURRENT=$#words
        source $2' zsh "$1" "$scripts/zel-package.zsh"
}

in_fish() {
    fish --no-config -c 'source $argv[2]; complete -C $argv[1]' "$1" "$scripts/zel-package.fish"
}

# expect SHELL COMPLETIONS LINE: checks the completions of the last word in a line.
expect() {
    local actual
    actual=$("in_$1" "$3" | sed '/^$/d' | sort | paste -sd ' ')
    if [[ "$actual" != "$2" ]]; then
        printf "%s: '%s' completes to '%s', not '%s'\n" "$1" "$3" "$actual" "$2"
        failures=1
    fi
}

for shell in bash zsh fish; do
    if ! command -v "$shell" >/dev/null; then
        printf 'no %s\n' "$shell"
        continue
    fi
    expect $shell 'set show' 'zel-package s'
    expect $shell '--help export import status' 'zel-package texts '
    expect $shell '--dry-run --force --help' 'zel-package texts import set.xml --'
    expect $shell 'en_GB en_US' 'zel-package texts export --source en_'
    expect $shell 'en_GB en_US' 'zel-package new --language en_'
    expect $shell 'json text' 'zel-package languages --format '
    expect $shell 'uid-invalid,name-missing uid-invalid,name-missing-default' \
        'zel-package validate --ignore uid-invalid,name'
    expect $shell 'trigger-sentences-missing' 'zel-package explain tr'
    expect $shell '--check --format --help' 'zel-package format --'
    expect $shell 'behaviors[pour].nature' 'zel-package get set.xml behaviors[pour].n'
    expect $shell 'author=' 'zel-package set set.xml uid=x au'
    expect $shell 'supportedLanguages[+]= supportedLanguages[en_US]=' \
        'zel-package set set.xml supportedLanguages['
done
expect bash 'sarif' 'zel-package validate --format=s'
expect fish '--format=sarif' 'zel-package validate --format=s'
expect zsh '--format=sarif' 'zel-package validate --format=s'
expect bash 'behaviors\[a=b\\\]c.d\].' 'zel-package get set.xml behaviors[a'
expect bash 'b\\\]c.d\].path' 'zel-package get set.xml behaviors\[a=b\\\]c.d\].pa'
expect bash '' 'zel-package format s'
expect fish 'set.xml' 'zel-package format s'

for hostile in '$(touch$IFS"run")' '`touch$IFS"run"`' '$((a[$(touch$IFS"run")]))' '<(touch$IFS"run")' '~' '*'; do
    for shell in bash zsh fish; do
        command -v "$shell" >/dev/null || continue
        for line in "new --language $hostile" "validate --ignore $hostile,uid" "get $hostile uid" \
            "$hostile" "$hostile " "set set.xml $hostile"; do
            "in_$shell" "zel-package $line" >/dev/null 2>&1
        done
    done
done
if [[ $(ls) != set.xml ]]; then
    echo "A word was evaluated."
    failures=1
fi
exit $failures
