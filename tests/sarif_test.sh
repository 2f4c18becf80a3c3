#!/usr/bin/env bash
# Usage: sarif_test.sh PROGRAM SOURCE-DIR WORK-DIR
#
# Validates the output of "zel-package validate --format sarif" with the SARIF multitool from npm.
# Skips the test (status 77) with a message if npm or its registry is unavailable.

set -euo pipefail

program=$1 source=$2 work=$3
package=@microsoft/sarif-multitool version=5.7.0

skip() {
    printf 'SKIPPED: %s; nobody has judged the SARIF output.\n' "$1"
    exit 77
}

mkdir -p "$work/files/ü #1" && cd "$work"
[ -e package.json ] || printf '{}' >package.json

for needed in node npm; do
    command -v "$needed" >/dev/null || skip "$needed is not installed"
done
if [ ! -d "node_modules/$package" ]; then
    npm install --no-audit --no-fund --fetch-retries=0 --save-exact "$package@$version" \
        >npm.log 2>&1 || skip "npm cannot install $package"
fi
multitool=$(node -p "require('$package')") 2>npm.log || skip "$package does not run here"
chmod u+x "$multitool"

# Prints the errors that the multitool finds. Its exit status is 0 in any case.
errors_in() {
    "$multitool" validate "$1" --level Error --output judged.sarif --log ForceOverwrite >judged.log
    grep -q '^Analysis completed successfully' judged.log || {
        cat judged.log
        return 1
    }
    grep -E ' error [A-Z]+[0-9]+: ' judged.log || :
}

cp "$source/examples/packages/faulty/manifest.xml" "files/ü #1/a b.xml"
cp "$source/tests/data/manifest/invalid/crossed-tags.xml" files/broken.xml

# Findings of every rule, a malformed manifest, a missing one, and names that need encoding.
status=0
"$program" validate --format sarif "$source"/examples/packages/*/manifest.xml files/*/*.xml \
    files/broken.xml files/missing.xml - </dev/null >all.sarif 2>all.err || status=$?
[ "$status" -eq 2 ]
"$program" validate --format sarif "$source/examples/packages/small/manifest.xml" >none.sarif

for log in all none; do
    errors=$(errors_in "$log.sarif")
    if [ -n "$errors" ]; then
        printf '%s.sarif: %s\n' "$log" "$errors"
        exit 1
    fi
done

# The tool must detect errors.
sed 's/"startLine":[0-9]*/"startLine":-1/' all.sarif >wrong.sarif
[ -n "$(errors_in wrong.sarif)" ]
