#pragma once

#include <tano/tano_package_export.h>
#include <tano/text_maps.h>

#include <string>

namespace Tano {

/// A service that a package starts on the robot. All texts are UTF-8.
///
/// ```cpp
/// package.addService(Tano::PackageService{"clock", "bin/clock", true, {{"interval", "60"}}});
/// ```
struct TANO_PACKAGE_EXPORT PackageService {
    std::string name;      ///< identifies the service within its package
    std::string execStart; ///< the command that starts it
    bool autoRun = false;  ///< whether it starts with the robot
    TextMap properties;    ///< further settings by name
};

/// @{
/// Compares all members.
TANO_PACKAGE_EXPORT bool operator==(const PackageService &a, const PackageService &b);
inline bool operator!=(const PackageService &a, const PackageService &b) {
    return !(a == b);
}
/// @}

} // namespace Tano
