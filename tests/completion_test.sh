#!/bin/bash
# Completes hostile words, none of which may be evaluated, and a few that have completions.
# Usage: completion_test.sh COMPLETION PROGRAM WORK_DIR

set -u
source "$1"
program=$2
rm -rf "$3" && mkdir -p "$3" && cd "$3" || exit 1
failures=0

# expect COMPLETIONS WORD...: the completions of the last word, one after another.
expect() {
    local expected=$1
    shift
    COMP_WORDS=("$program" "$@")
    COMP_CWORD=$#
    _zel_package
    if [[ "${COMPREPLY[*]-}" != "$expected" ]]; then
        echo "'$*' completes to '${COMPREPLY[*]-}', not '$expected'"
        failures=1
    fi
}

expect 'show set' s
expect 'en_GB en_US' new --language en_
expect 'uid-invalid,name-missing-default uid-invalid,name-missing' validate --ignore uid-invalid,name
expect 'trigger-sentences-missing' explain tr
expect '' format manifest

for hostile in '$(touch run)' '`touch run`' '$((a[$(touch run)]))' '<(touch run)' '~' '*'; do
    expect "$hostile,uid-invalid" validate --ignore "$hostile,uid"
    for command in new show validate explain "$hostile"; do
        expect '' "$command" --language "$hostile"
        expect '' "$command" --ignore "$hostile"
        expect '' "$command" "$hostile"
    done
    expect '' "$hostile"
done
if [[ -n $(ls) ]]; then
    echo "A word was evaluated."
    failures=1
fi
exit $failures
