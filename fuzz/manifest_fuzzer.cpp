// What the reader accepts is written, and reading that gives the same record and the same bytes.
// What it refuses is refused with a sentence and a place, and leaves the record alone.

#include "target.h"

#include <tano/manifest_reader.h>
#include <tano/package_info.h>

namespace {

void requireRefusal(const Tano::ManifestReader &reader, const Tano::PackageInfo &package) {
    require(!reader.errorMessage().empty(), "a refusal has a sentence");
    require(reader.errorPosition().line > 0 && reader.errorPosition().column > 0,
            "a refusal has a place");
    require(package == Tano::PackageInfo(), "a refusal leaves the record alone");
}

void requireRoundTrip(const Tano::PackageInfo &package) {
    const std::string written = package.saveToManifestContent();
    require(package.errorString().empty(), "what was read can be written");

    Tano::PackageInfo again;
    require(again.loadFromManifestContent(written), "what was written can be read");
    require(again == package, "reading gives back the record");
    require(again.saveToManifestContent() == written, "writing gives back the bytes");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string content(reinterpret_cast<const char *>(data), size);
    Tano::ManifestReader reader(Tano::ManifestReader::Positions::Keep);
    Tano::PackageInfo package;
    if (reader.readContent(content, package)) {
        require(reader.position(Tano::FieldPath()).line > 0, "the root element has a place");
        requireRoundTrip(package);
    } else {
        requireRefusal(reader, package);
    }
    return 0;
}
