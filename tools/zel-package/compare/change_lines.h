#pragma once

#include <packagemodel/package_edits.h>

#include <functional>

namespace ZelPackage {

/// Passes on each edit of a package as a line for people, such as
/// `Name of “greet” in French changed from "Salut" to "Bonjour"`, and applies it.
void visitChanges(Zel::PackageInfoModel *package, const Zel::PackageModel::Edits &edits,
                  const std::function<void(const QString &line)> &visit);

} // namespace ZelPackage
