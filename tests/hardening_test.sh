#!/bin/sh
# Checks the hardening of the installed libraries and programs.
# Usage: hardening_test.sh PREFIX CONFIGURATION

failures=0

# expect FILE PATTERN: checks that a line of the description matches.
expect() {
    if ! printf '%s\n' "$description" | grep -Eq -- "$2"; then
        echo "$1: nothing matches '$2'"
        failures=1
    fi
}

count=0
for file in $(find "$1" -type f \( -name '*.so.*' -o -path '*/bin/*' \)); do
    count=$((count + 1))
    description=$(readelf -hldW --dyn-syms "$file")
    expect "$file" '^ *Type: *DYN'
    expect "$file" '^ *GNU_RELRO '
    expect "$file" '\(FLAGS_1\).* NOW'
    expect "$file" '^ *GNU_STACK .* RW '
    case $2 in
    Debug | '') continue ;;
    esac
    expect "$file" ' __stack_chk_fail@'
    # Start-up code alone has fewer than ten branch targets, and lacks the property that marks the
    # whole file.
    case $(uname -m) in
    x86_64)
        if [ "$(objdump -d "$file" | grep -c endbr64)" -lt 15 ]; then
            echo "$file: branch targets are not marked"
            failures=1
        fi
        ;;
    esac
    case $file in
    */bin/zel-package) expect "$file" ' __fprintf_chk@' ;;
    esac
done
if [ $count -lt 8 ]; then
    echo "Only $count files were found below $1."
    failures=1
fi
exit $failures
