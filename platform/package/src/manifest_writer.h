#pragma once

#include "record_fields.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace Tano {

/// The written text, or the reason why it cannot be written.
struct WrittenManifest {
    std::string text;
    std::string error; ///< a sentence that names the field; empty on success
};

/// Observes the writing of a manifest, in document order. Offsets are positions in its text.
class WriteObserver {
public:
    WriteObserver() = default;
    WriteObserver(const WriteObserver &) = delete;
    WriteObserver &operator=(const WriteObserver &) = delete;
    virtual ~WriteObserver() = default;

    /// An element starts on its own line; `offset` is the position of the preceding line break.
    /// `index` counts the entries of its list, whatever their keys. A text block may be reported
    /// and then omitted because it turned out to be empty.
    virtual void elementStarts(Element element, const std::string &key, int index,
                               std::size_t offset) = 0;
    virtual void elementEnds() = 0;
    /// The unknown attributes of the current element: Extras::attributes.
    virtual void keptAttributes(std::string_view /*attributes*/, std::size_t /*offset*/) {}
    /// A piece of the kept content of the innermost element.
    virtual void keptPiece(std::string_view /*xml*/, std::size_t /*offset*/) {}
};

/// Writes the canonical manifest of a package. `observer` may be null.
WrittenManifest writeManifest(const PackageData &package, WriteObserver *observer = nullptr);

// A single entry, as written in a manifest.
WrittenManifest writeElement(const BehaviorData &behavior);
WrittenManifest writeElement(const DialogData &dialog);
inline WrittenManifest writeElement(const PackageData &package) {
    return writeManifest(package);
}

/// Whether two records have the same fields and the same extras, that is, extras that are written
/// identically.
template<typename Data>
bool sameContent(const Data &a, const Data &b) {
    return equalFields(a, b) &&
           (a.extras == b.extras || writeElement(a).text == writeElement(b).text);
}

} // namespace Tano
