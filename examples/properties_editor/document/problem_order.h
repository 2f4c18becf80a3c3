#pragma once

#include <packagemodel/package_issues.h>

namespace Editor {

/// The indexes of issues in the order in which users want to read them: the worst first, then in
/// the order of the pages, with the entries of a list in its order. Issues of one field stay in the
/// order of the checks.
QVector<int> problemOrder(const Zel::PackageInfoModel &package,
                          const QVector<Zel::PackageModel::Issue> &issues);

} // namespace Editor
