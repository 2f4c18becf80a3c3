#pragma once

#include "record_fields.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace Tano {

/// The result of writing: the text, or why there is none.
struct WrittenManifest {
    std::string text;
    std::string error; ///< a sentence that names the field; empty after a success
};

/// Follows the writing of a manifest, in order. Offsets are into its text.
class WriteObserver {
public:
    WriteObserver() = default;
    WriteObserver(const WriteObserver &) = delete;
    WriteObserver &operator=(const WriteObserver &) = delete;
    virtual ~WriteObserver() = default;

    /// An element starts in a line of its own, whose line break is at `offset`. `index` counts the
    /// entries of the same list, whatever their keys. A block of texts may start and end although
    /// it is left out afterwards, since it turned out empty.
    virtual void elementStarts(Element element, const std::string &key, int index,
                               std::size_t offset) = 0;
    virtual void elementEnds() = 0;
    /// The unknown attributes of the element that starts: Extras::attributes.
    virtual void keptAttributes(std::string_view /*attributes*/, std::size_t /*offset*/) {}
    /// A piece of the kept content of the innermost element.
    virtual void keptPiece(std::string_view /*xml*/, std::size_t /*offset*/) {}
};

/// Writes the canonical manifest of a package. `observer` may be null.
WrittenManifest writeManifest(const PackageData &package, WriteObserver *observer = nullptr);

// One entry alone, as it stands in a manifest.
WrittenManifest writeElement(const BehaviorData &behavior);
WrittenManifest writeElement(const DialogData &dialog);
inline WrittenManifest writeElement(const PackageData &package) {
    return writeManifest(package);
}

/// Whether two records agree in their fields and their extras. The extras agree when
/// both are written alike.
template<typename Data>
bool sameContent(const Data &a, const Data &b) {
    return equalFields(a, b) &&
           (a.extras == b.extras || writeElement(a).text == writeElement(b).text);
}

} // namespace Tano
