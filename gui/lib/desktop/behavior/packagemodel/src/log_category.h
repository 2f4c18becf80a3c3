#pragma once

namespace Zel {

/// What this library writes to the log stands in this category.
inline constexpr const char *logCategory = "PackageModel.Package";

} // namespace Zel
