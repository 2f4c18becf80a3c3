#pragma once

#include <tano/tano_package_export.h>
#include <tano/text_maps.h>

#include <string>

namespace Tano {

/// A service that a package starts on the robot. UTF-8 throughout.
struct TANO_PACKAGE_EXPORT PackageService {
    std::string name;
    std::string execStart; ///< the command that starts it
    bool autoRun = false;  ///< whether it starts with the robot
    TextMap properties;    ///< further settings by name, passed on as they are
};

TANO_PACKAGE_EXPORT bool operator==(const PackageService &a, const PackageService &b);
inline bool operator!=(const PackageService &a, const PackageService &b) {
    return !(a == b);
}

} // namespace Tano
