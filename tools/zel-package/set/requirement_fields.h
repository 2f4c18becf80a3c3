#pragma once

#include "field_table.h"

namespace ZelPackage {

/// Set fields such as "robotRequirements[0].maxBodyVersion" and
/// "brioRequirements[+].minVersion".
[[nodiscard]] bool editRobotRequirement(const Edit &edit, Zel::PackageInfoModel &package,
                                        const QStringList &keys);
[[nodiscard]] bool editBrioRequirement(const Edit &edit, Zel::PackageInfoModel &package,
                                       const QStringList &keys);

} // namespace ZelPackage
