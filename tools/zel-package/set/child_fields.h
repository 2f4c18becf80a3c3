#pragma once

#include "field_table.h"

namespace ZelPackage {

/// Set fields such as "behaviors[greet].tags[en_US][0]", "dialogs[tea].typeVersion"
/// and "services[clock].execStart".
[[nodiscard]] bool editBehavior(const Edit &edit, Zel::PackageInfoModel &package,
                                const QStringList &keys);
[[nodiscard]] bool editDialog(const Edit &edit, Zel::PackageInfoModel &package,
                              const QStringList &keys);
[[nodiscard]] bool editService(const Edit &edit, Zel::PackageInfoModel &package,
                               const QStringList &keys);

} // namespace ZelPackage
