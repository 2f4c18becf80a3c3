#!/bin/sh
# Compares the symbols that installed libraries export with their lists: a program that was built
# with a library needs them. Templates and inline functions are left out, since each program has its
# own copy. With ZEL_UPDATE_GOLDEN in the environment, the lists are written instead.
# Usage: abi_test.sh PREFIX LISTS

set -eu
status=0
for library in "$1"/lib/*/lib*.so.*.*.* "$1"/lib/lib*.so.*.*.*; do
    [ -e "$library" ] || continue
    name=$(basename "$library" | sed 's/\(\.so\.[0-9]*\).*/\1/')
    symbols=$(nm --dynamic --defined-only --demangle "$library" |
        sed -n 's/^[0-9a-f]* [TDBR] //p' | LC_ALL=C sort -u)
    list=$2/$name.txt
    if [ -n "${ZEL_UPDATE_GOLDEN-}" ]; then
        printf '%s\n' "$symbols" > "$list"
    elif ! printf '%s\n' "$symbols" | diff -u --label "$list" --label "$library" "$list" -; then
        status=1
    fi
done
if [ $status -ne 0 ]; then
    cat << 'EOF'
The exported symbols have changed. Programs that use one that is gone or different no longer run, so
that the library needs a new major version. If the change is wanted, note it in CHANGELOG.md and
write the lists anew: ZEL_UPDATE_GOLDEN=1 ctest -R abi
EOF
fi
exit $status
