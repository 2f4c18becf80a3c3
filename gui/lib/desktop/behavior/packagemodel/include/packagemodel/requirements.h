#pragma once

#include <packagemodel/packagemodel_export.h>

#include <tano/requirements.h>
#include <zel/software_version.h>

#include <QMap>
#include <QMetaType>
#include <QString>

namespace Zel {

/// A robot that a package runs on, with the versions of its head and body that it accepts. A
/// version without fields is a bound that is not set.
struct PACKAGEMODEL_EXPORT RobotRequirement {
    /// The robots that a package may require: what `model` holds for each, and the text for the
    /// user. There is one for any robot, one for any model of each family ("HERON"), and one for
    /// each model ("HERON_H1").
    ///
    /// Read from the known robot models (Zel::RobotModel) when first asked for, and kept from then
    /// on. Texts are in the language of the application at that time.
    static const QMap<QString, QString> &prettyRobotNames();

    QString model; ///< the model or family; empty for any robot
    SoftwareVersion minHeadVersion;
    SoftwareVersion maxHeadVersion;
    SoftwareVersion minBodyVersion;
    SoftwareVersion maxBodyVersion;
};

PACKAGEMODEL_EXPORT bool operator==(const RobotRequirement &a, const RobotRequirement &b);
inline bool operator!=(const RobotRequirement &a, const RobotRequirement &b) {
    return !(a == b);
}

/// The versions of the Brio middleware that a package accepts.
struct PACKAGEMODEL_EXPORT BrioRequirement {
    SoftwareVersion minVersion;
    SoftwareVersion maxVersion;
};

PACKAGEMODEL_EXPORT bool operator==(const BrioRequirement &a, const BrioRequirement &b);
inline bool operator!=(const BrioRequirement &a, const BrioRequirement &b) {
    return !(a == b);
}

/// Tells whether `min` to `max` makes a range: both equal, or the first field in which they differ
/// greater in `max`. When one only continues the other, whichever it is, that is a range too.
PACKAGEMODEL_EXPORT bool isRangeValid(const SoftwareVersion &min, const SoftwareVersion &max);

// To and from the records. A version text that does not parse gives a version that is not set.

PACKAGEMODEL_EXPORT RobotRequirement fromTanoRobotRequirement(const Tano::RobotRequirement &record);
PACKAGEMODEL_EXPORT Tano::RobotRequirement
toTanoRobotRequirement(const RobotRequirement &requirement);
PACKAGEMODEL_EXPORT BrioRequirement fromTanoBrioRequirement(const Tano::BrioRequirement &record);
PACKAGEMODEL_EXPORT Tano::BrioRequirement toTanoBrioRequirement(const BrioRequirement &requirement);

} // namespace Zel

Q_DECLARE_METATYPE(Zel::RobotRequirement)
Q_DECLARE_METATYPE(Zel::BrioRequirement)
