# For shell tests that merge in a git repository.

export GIT_CONFIG_GLOBAL=/dev/null GIT_CONFIG_SYSTEM=/dev/null
export GIT_AUTHOR_NAME=A GIT_AUTHOR_EMAIL=a@example.org
export GIT_COMMITTER_NAME=A GIT_COMMITTER_EMAIL=a@example.org

# repository DRIVER OURS THEIRS: creates and enters a repository with two branches, which make the
# given edits of the manifest. Uses the merge driver if DRIVER is "with".
repository() {
    set -f # the edits contain brackets
    rm -rf repository && git init -q -b ours repository && cd repository || exit
    cp "$FILES/good.xml" manifest.xml
    if [ "$1" = with ]; then
        echo 'manifest.xml merge=zel-package diff=zel-package' >.gitattributes
        git config merge.zel-package.driver 'zel-package merge %O %A %B --path %P'
    fi
    git add . && git commit -qm base && git checkout -qb theirs || exit
    zel-package set manifest.xml $3 && git commit -qam theirs && git checkout -q ours || exit
    zel-package set manifest.xml $2 && git commit -qam ours || exit
}

# merges OURS THEIRS: merges the branches with and without the driver.
merges() {
    for driver in without with; do
        (repository $driver "$1" "$2"
        git merge theirs >/dev/null 2>messages && echo "$driver: merged" || echo "$driver: conflict"
        grep ^zel-package messages)
    done
}
