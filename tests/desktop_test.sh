#!/bin/sh
# Checks the files in an installed tree that desktops and XML programs use: the desktop entry, the
# metainfo, the MIME type of manifests and the catalog of schemas.
# Usage: desktop_test.sh PREFIX SOURCE_DIR

set -eu
share=$1/share
samples=$2/examples/packages
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

id=example.packagemodel.PropertiesEditor
desktop-file-validate "$share/applications/$id.desktop"
appstreamcli validate --no-net "$share/metainfo/$id.metainfo.xml"
xmllint --noout "$share/icons/hicolor/scalable/apps/$id.svg"

# expect FILE TYPE: checks the MIME type of a file.
expect() {
    found=$(XDG_DATA_HOME=$work gio info -a standard::content-type "$1" |
        sed -n 's/.*content-type: //p')
    if [ "$found" != "$2" ]; then
        echo "$1: $found instead of $2"
        exit 1
    fi
}
mkdir -p "$work/mime/packages"
cp "$share/mime/packages/zel-package.xml" "$work/mime/packages"
XDG_DATA_HOME=$work update-mime-database "$work/mime"
type=$(sed -n 's/^MimeType=\(.*\);$/\1/p' "$share/applications/$id.desktop")
cp "$samples/small/manifest.xml" "$work/downloaded"
printf '<?xml version="1.0"?>\n<packages/>\n' > "$work/other"
expect "$samples/small/manifest.xml" "$type"
expect "$work/downloaded" "$type"
expect "$work/other" application/xml

# Finds the schema by its URL without network access.
XML_CATALOG_FILES=$share/xml/zel-package/catalog.xml xmllint --nonet --noout \
    --schema https://packagemodel.example/schema/manifest.xsd "$samples/small/manifest.xml"
