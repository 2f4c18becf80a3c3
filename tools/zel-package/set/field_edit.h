#pragma once

#include "assignment.h"
#include "console/console.h"

namespace Zel {
class PackageInfoModel;
}

namespace ZelPackage {

/// Assigns to a field of the package. Returns false if the assignment is wrong, once the reason is
/// reported.
///
/// An empty value clears a text and removes an item of a list; the key "+" appends one.
[[nodiscard]] bool assign(const Assignment &assignment, Zel::PackageInfoModel &package,
                          Console &console);

} // namespace ZelPackage
