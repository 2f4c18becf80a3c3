// An accepted manifest is written without losses, and reading the result gives the same record and
// the same bytes. A rejected one is reported with a sentence and a position, and leaves the record
// unchanged. Memory stays below a multiple of the input.

#include "heap_peak.h"
#include "manifest_contents.h"
#include "target.h"

#include <tano/manifest_reader.h>
#include <tano/package_info.h>

namespace {

constexpr std::size_t mostPerByte = 40;
constexpr std::size_t mostInAddition = std::size_t(64) << 10;

void requireRejection(const Tano::ManifestReader &reader, const Tano::PackageInfo &package) {
    require(!reader.errorMessage().empty(), "a rejection has a sentence");
    require(reader.errorPosition().line > 0 && reader.errorPosition().column > 0,
            "a rejection has a position");
    require(package == Tano::PackageInfo(), "a rejection leaves the record alone");
}

void requireRoundTrip(const std::string &content, const Tano::PackageInfo &package) {
    const std::string written = package.saveToManifestContent();
    require(package.errorString().empty(), "what was read can be written");
    const std::string lost = differenceOfManifests(content, written);
    require(lost.empty(), "the first writing loses and adds nothing: " + lost);

    Tano::PackageInfo again;
    require(again.loadFromManifestContent(written), "what was written can be read");
    require(again == package, "reading gives back the record");
    require(again.saveToManifestContent() == written, "writing gives back the bytes");
}

void requirePositions(const Tano::ManifestReader &reader) {
    require(reader.position(Tano::FieldPath()).line > 0, "the root element has a position");
    for (const Tano::UnknownNode &node : reader.unknownNodes()) {
        const auto parsed = Tano::FieldPath::parse(node.parentPath.toString());
        require(parsed && *parsed == node.parentPath, "a path survives printing");
        require(reader.position(node.parentPath).line <= node.position.line,
                "an unknown node lies in its parent");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string content(reinterpret_cast<const char *>(data), size);
    Tano::ManifestReader reader(Tano::ManifestReader::Positions::Keep);
    Tano::PackageInfo package;
    resetHeapPeak();
    const bool isAccepted = reader.readContent(content, package);
    require(heapPeak() <= mostPerByte * size + mostInAddition,
            "reading " + std::to_string(size) + " bytes took " + std::to_string(heapPeak()));
    if (isAccepted) {
        requirePositions(reader);
        requireRoundTrip(content, package);
    } else {
        requireRejection(reader, package);
    }
    return 0;
}
