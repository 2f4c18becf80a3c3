# shellcheck shell=bash
# Functions shared by the scripts, which source this file. They run in the root of the source tree.

root=$(CDPATH='' cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root" || exit

# Runs a command quietly and prints a one-line summary; if it fails, prints all of its output.
step() {
    local title=$1 log begin=$SECONDS status=0
    shift
    log=$(mktemp)
    "$@" >"$log" 2>&1 </dev/null || status=$?
    if [ "$status" -eq 0 ]; then
        printf '%s: done in %d s\n' "$title" "$((SECONDS - begin))"
    else
        cat "$log"
        printf '%s: FAILED (status %d): %s\n' "$title" "$status" "$*" >&2
    fi
    rm -f "$log"
    return "$status"
}

# Prints the calling script's leading comment as its help.
usage() {
    sed -n '2,/^$/ s/^# \{0,1\}//p' "script/${0##*/}"
}

# Exits with a message about wrong arguments.
usage_error() {
    printf '%s: %s\n' "${0##*/}" "$1" >&2
    printf 'Try script/%s --help.\n' "${0##*/}" >&2
    exit 2
}
