#pragma once

namespace Zel {

/// The logging category of this library.
inline constexpr const char *logCategory = "PackageModel.Package";

} // namespace Zel
