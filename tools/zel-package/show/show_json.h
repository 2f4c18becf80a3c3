#pragma once

#include <QString>

namespace Zel {
class PackageInfoModel;
}

namespace ZelPackage {

/// All of a package as one JSON object (RFC 8259), in the words of the manifest's fields, with a
/// final line feed. A field that is not set is an empty text, list or object.
QString jsonOf(const Zel::PackageInfoModel &package);

} // namespace ZelPackage
