#!/bin/sh
# Usage: pre_commit_test.sh PROGRAM SOURCE WORK
#
# Uses the hooks for pre-commit as another repository does; exits with 77 without pre-commit.

set -eu
program=$1 source=$2 work=$3
command -v pre-commit >/dev/null || exit 77

rm -rf "$work"
mkdir -p "$work/hooks" "$work/project/app"
PATH=$(dirname "$program"):$PATH
export PATH PRE_COMMIT_HOME="$work/cache" HOME="$work" GIT_CONFIG_NOSYSTEM=1
git config --global user.name Ines
git config --global user.email ines@example.org

cp "$source/.pre-commit-hooks.yaml" "$work/hooks"
git -C "$work/hooks" init -q
git -C "$work/hooks" add .
git -C "$work/hooks" commit -q -m 'Add hooks'

cd "$work/project"
git init -q
cat >.pre-commit-config.yaml <<END
repos:
  - repo: $work/hooks
    rev: $(git -C "$work/hooks" rev-parse HEAD)
    hooks: [{id: zel-package-format}, {id: zel-package-validate}]
END
sed 's/ uid=/  uid=/' "$source/examples/packages/small/manifest.xml" >app/manifest.xml
git add .

expect_failure_with() {
    if pre-commit run >output 2>&1 || ! grep -q "$1" output; then
        cat output
        exit 1
    fi
}

expect_failure_with 'files were modified by this hook'
git add app
pre-commit run
sed -i "s/morning-wave/Morning/" app/manifest.xml
git add app
expect_failure_with uid-invalid
