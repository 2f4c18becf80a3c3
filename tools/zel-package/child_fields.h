#pragma once

#include "field_table.h"

namespace ZelPackage {

/// The commands for fields such as "behaviors[greet].tags[en_US][0]", "dialogs[tea].typeVersion"
/// and "services[clock].execStart".
[[nodiscard]] Command editBehavior(const Edit &edit, Zel::PackageInfoModel &package,
                                   const QStringList &keys);
[[nodiscard]] Command editDialog(const Edit &edit, Zel::PackageInfoModel &package,
                                 const QStringList &keys);
[[nodiscard]] Command editService(const Edit &edit, Zel::PackageInfoModel &package,
                                  const QStringList &keys);

} // namespace ZelPackage
