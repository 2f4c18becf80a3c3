#pragma once

#include <tano/tano_package_export.h>

#include <string>

namespace Tano {

/// A robot that a package runs on, with the versions of its head and body that it accepts: dotted
/// numbers, empty for a bound that is not set.
struct TANO_PACKAGE_EXPORT RobotRequirement {
    std::string model; ///< the model's name; empty for any robot
    /// @{
    /// An inclusive bound.
    std::string minHeadVersion;
    std::string maxHeadVersion;
    std::string minBodyVersion;
    std::string maxBodyVersion;
    /// @}
};

/// @{
/// Compares all members.
TANO_PACKAGE_EXPORT bool operator==(const RobotRequirement &a, const RobotRequirement &b);
inline bool operator!=(const RobotRequirement &a, const RobotRequirement &b) {
    return !(a == b);
}
/// @}

/// The versions of the Brio middleware that a package runs on: dotted numbers, empty for a bound
/// that is not set.
struct TANO_PACKAGE_EXPORT BrioRequirement {
    std::string minVersion; ///< inclusive
    std::string maxVersion; ///< inclusive
};

/// @{
/// Compares all members.
TANO_PACKAGE_EXPORT bool operator==(const BrioRequirement &a, const BrioRequirement &b);
inline bool operator!=(const BrioRequirement &a, const BrioRequirement &b) {
    return !(a == b);
}
/// @}

} // namespace Tano
