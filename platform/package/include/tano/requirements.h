#pragma once

#include <tano/tano_package_export.h>

#include <string>

namespace Tano {

/// A robot that a package runs on: the model's name, empty for any, and the accepted versions of
/// its head and body as dotted numbers, empty where a bound is not set. UTF-8 throughout.
struct TANO_PACKAGE_EXPORT RobotRequirement {
    std::string model;
    std::string minHeadVersion;
    std::string maxHeadVersion;
    std::string minBodyVersion;
    std::string maxBodyVersion;
};

TANO_PACKAGE_EXPORT bool operator==(const RobotRequirement &a, const RobotRequirement &b);
inline bool operator!=(const RobotRequirement &a, const RobotRequirement &b) {
    return !(a == b);
}

/// The versions of the Brio middleware that a package runs on, as dotted numbers, empty where a
/// bound is not set.
struct TANO_PACKAGE_EXPORT BrioRequirement {
    std::string minVersion;
    std::string maxVersion;
};

TANO_PACKAGE_EXPORT bool operator==(const BrioRequirement &a, const BrioRequirement &b);
inline bool operator!=(const BrioRequirement &a, const BrioRequirement &b) {
    return !(a == b);
}

} // namespace Tano
