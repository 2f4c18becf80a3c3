#pragma once

#include "record_fields.h"

#include <string>

namespace Tano {

/// The result of writing: the text, or why there is none.
struct WrittenManifest {
    std::string text;
    std::string error; ///< a sentence that names the field; empty after a success
};

/// Writes the canonical manifest of a package.
WrittenManifest writeManifest(const PackageData &package);

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
