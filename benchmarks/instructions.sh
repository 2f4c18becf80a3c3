#!/usr/bin/env bash
# Usage: instructions.sh BIN
#
# Counts the instructions of a load, a save and a validation of a package of 1,000 behaviors with
# valgrind, which does not depend on the load of the machine. Compares them with instructions.txt;
# the exit status is 1 if one differs by more than 2 %. With ZEL_UPDATE_GOLDEN in the environment,
# writes that file instead.

set -euo pipefail
bin=$1
golden=$(dirname "$0")/instructions.txt
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$bin/write_samples" "$work" 1000

count() {
    QT_QPA_PLATFORM=offscreen valgrind --tool=cachegrind --cache-sim=no \
        --cachegrind-out-file="$work/profile" "$bin/one_run" "$1" "$work/1000.xml" >/dev/null 2>&1
    sed -n 's/^summary: //p' "$work/profile"
}

base=$(count read)
load=$(($(count load) - base))
save=$(($(count save) - base - load))
validate=$(($(count validate) - base - load))
printf 'load %d\nsave %d\nvalidate %d\n' "$load" "$save" "$validate" >"$work/counts"
if [ -n "${ZEL_UPDATE_GOLDEN-}" ]; then
    cp "$work/counts" "$golden"
fi
awk '
    NR == FNR { expected[$1] = $2; next }
    {
        change = ($2 / expected[$1] - 1) * 100
        printf "%s: %.1f million instructions, %+.1f %%\n", $1, $2 / 1e6, change
        if (change > 2 || change < -2) status = 1
    }
    END { exit status }' "$golden" "$work/counts"
