#!/usr/bin/env bash
# Usage: xliff_test.sh PROGRAM MANIFEST WORK-DIR LCONVERT XLIFF2PO PO2XLIFF
#
# Exports a package's texts in each language, converts them to PO and back with two independent
# tools, and imports them: unchanged, with one changed translation, and with the German names of all
# behaviors, checking that nothing else changes.

set -euo pipefail

program=$1 manifest=$2 work=$3 lconvert=$4 xliff2po=$5 po2xliff=$6
rm -rf "$work" && mkdir -p "$work" && cd "$work"

by_lconvert() {
    case $1 in
    to_po) "$lconvert" -i "$2" -if xlf -of po -o "$3" ;;
    from_po) "$lconvert" -i "$2" -if po -of xlf -o "$3" ;;
    esac
}

by_toolkit() {
    case $1 in
    to_po) "$xliff2po" --progress=none "$2" "$3" ;;
    from_po) "$po2xliff" --progress=none "$2" "$3" ;;
    esac
}

fail() {
    printf '%s\n' "$@"
    exit 1
}

# The languages of the package, the source first, as "show" prints the package.
languages=$("$program" show "$manifest" --format json |
    python3 -c 'import json, sys; print(*json.load(sys.stdin)["supportedLanguages"])')
[ "${languages%% *}" = en_US ] && [ "$(wc -w <<<"$languages")" -eq 10 ] || fail "$languages"

for language in ${languages#* }; do
    for tool in by_lconvert by_toolkit; do
        base=$tool-$language
        cp "$manifest" "$base.xml"
        "$program" texts export "$base.xml" --language "$language" -o "$base.xlf"
        $tool to_po "$base.xlf" "$base.po" >tool.log 2>&1 || fail "$base" "$(<tool.log)"
        $tool from_po "$base.po" "$base-back.xlf" >tool.log 2>&1 || fail "$base" "$(<tool.log)"
        "$program" texts import "$base.xml" "$base-back.xlf" 2>import.log ||
            fail "$base" "$(<import.log)"
        grep -q ': Texts: 0 imported, 89 unchanged, 0 untranslated, 0 skipped\.$' import.log ||
            fail "$base" "$(<import.log)"
        cmp "$manifest" "$base.xml"

        # The translator changes the translation of the package's name.
        name=$("$program" get "$base.xml" "names[$language]")
        python3 - "$base.po" "$name" <<'END'
import pathlib, sys
path = pathlib.Path(sys.argv[1])
old = 'msgid "Reading corner"\nmsgstr "%s"' % sys.argv[2]
text = path.read_text()
assert text.count(old) == 1, text.count(old)
path.write_text(text.replace(old, old[:-1] + ' \\"2\\""'))
END
        $tool from_po "$base.po" "$base-back.xlf" >tool.log 2>&1 || fail "$base" "$(<tool.log)"
        "$program" texts import "$base.xml" "$base-back.xlf" 2>import.log ||
            fail "$base" "$(<import.log)"
        for each in "$manifest" "$base.xml"; do
            "$program" get "$each" names descriptions behaviors >"${each##*/}.txt"
        done
        changes=$(diff manifest.xml.txt "$base.xml.txt" | grep '^[<>]' || :)
        [ "$changes" = "< names[$language]=$name
> names[$language]=$name \"2\"" ] || fail "$base" "$changes"
    done
done

translate_behaviors='
import json, pathlib, sys
package = json.loads(sys.argv[2])
path = pathlib.Path(sys.argv[1])
text = path.read_text()
names = [behavior["names"] for behavior in package["behaviors"]]
assert len(names) == 20, len(names)
for name in names:
    old = "msgid \"%s\"\nmsgstr \"%s\"" % (name["en_US"], name["de_DE"])
    assert old in text, old
    text = text.replace(old, old[:-1] + " (neu)\"")
path.write_text(text)
'
expected=$("$program" show "$manifest" --format json | python3 -c '
import json, sys
for behavior in json.load(sys.stdin)["behaviors"]:
    print("behaviors[%s].names[de_DE]" % behavior["path"], behavior["names"]["de_DE"], "(neu)")')
for tool in by_lconvert by_toolkit; do
    cp "$manifest" german.xml
    "$program" texts export german.xml --language de_DE -o german.xlf
    $tool to_po german.xlf german.po >tool.log 2>&1 || fail "$tool" "$(<tool.log)"
    python3 -c "$translate_behaviors" german.po "$("$program" show german.xml --format json)"
    $tool from_po german.po german-back.xlf >tool.log 2>&1 || fail "$tool" "$(<tool.log)"
    "$program" texts import german.xml german-back.xlf 2>import.log || fail "$(<import.log)"
    changes=$("$program" diff "$manifest" german.xml --format json | python3 -c '
import json, sys
for edit in json.load(sys.stdin)["edits"]:
    assert edit["action"] == "set", edit
    print(edit["path"], edit["value"])') || :
    [ "$changes" = "$expected" ] || fail "$tool" "$changes"
done
