#pragma once

#include <packagemodel/packagemodel_export.h>

#include <tano/requirements.h>
#include <zel/software_version.h>

#include <QMap>
#include <QMetaType>
#include <QString>

namespace Zel {

/// A robot that a package runs on, with the versions of its head and body that it accepts.
///
/// ```cpp
/// RobotRequirement requirement;
/// requirement.model = QStringLiteral("HERON_H1");
/// requirement.minBodyVersion = SoftwareVersion{1, 2};
/// package.addRobotRequirement(requirement);
/// ```
struct PACKAGEMODEL_EXPORT RobotRequirement {
    /// The values of `model` and their names for users: any robot, any model of each family
    /// ("HERON"), and each model ("HERON_H1").
    ///
    /// The first call reads the robot models (Zel::RobotModel) and keeps the result; names are in
    /// the language of the application at that time.
    static const QMap<QString, QString> &prettyRobotNames();

    QString model; ///< the model or family; empty for any robot
    /// @{
    /// An inclusive bound; without fields if it is not set.
    SoftwareVersion minHeadVersion;
    SoftwareVersion maxHeadVersion;
    SoftwareVersion minBodyVersion;
    SoftwareVersion maxBodyVersion;
    /// @}
};

/// @{
/// Compares all members.
PACKAGEMODEL_EXPORT bool operator==(const RobotRequirement &a, const RobotRequirement &b);
inline bool operator!=(const RobotRequirement &a, const RobotRequirement &b) {
    return !(a == b);
}
/// @}

/// The versions of the Brio middleware that a package accepts. A version without fields is a bound
/// that is not set.
struct PACKAGEMODEL_EXPORT BrioRequirement {
    SoftwareVersion minVersion; ///< inclusive
    SoftwareVersion maxVersion; ///< inclusive
};

/// @{
/// Compares all members.
PACKAGEMODEL_EXPORT bool operator==(const BrioRequirement &a, const BrioRequirement &b);
inline bool operator!=(const BrioRequirement &a, const BrioRequirement &b) {
    return !(a == b);
}
/// @}

/// Whether `min` to `max` is a valid range: both are equal, or the first differing field is greater
/// in `max`, or one version is a prefix of the other.
PACKAGEMODEL_EXPORT bool isRangeValid(const SoftwareVersion &min, const SoftwareVersion &max);

/// @{
/// Converts a requirement from or to that of a record. A malformed version becomes one that is not
/// set.
PACKAGEMODEL_EXPORT RobotRequirement fromTanoRobotRequirement(const Tano::RobotRequirement &record);
PACKAGEMODEL_EXPORT Tano::RobotRequirement
toTanoRobotRequirement(const RobotRequirement &requirement);
PACKAGEMODEL_EXPORT BrioRequirement fromTanoBrioRequirement(const Tano::BrioRequirement &record);
PACKAGEMODEL_EXPORT Tano::BrioRequirement toTanoBrioRequirement(const BrioRequirement &requirement);
/// @}

} // namespace Zel

Q_DECLARE_METATYPE(Zel::RobotRequirement)
Q_DECLARE_METATYPE(Zel::BrioRequirement)
