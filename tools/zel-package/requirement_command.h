#pragma once

#include "field_table.h"

namespace ZelPackage {

/// The commands for fields such as "robotRequirements[0].maxBodyVersion" and
/// "brioRequirements[+].minVersion".
[[nodiscard]] Command editRobotRequirement(const Edit &edit, Zel::PackageInfoModel &package,
                                           const QStringList &keys);
[[nodiscard]] Command editBrioRequirement(const Edit &edit, Zel::PackageInfoModel &package,
                                          const QStringList &keys);

} // namespace ZelPackage
