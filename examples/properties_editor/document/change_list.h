#pragma once

#include <packagemodel/package_edits.h>

#include <QStringList>

namespace Editor {

/// What edits change in a package, for people.
struct ChangeList {
    QStringList lines;
    QString error; ///< why the package does not take the edits; empty if it does
};

/// The changes in the order of the manifest; what the edits take back themselves is not among them.
ChangeList changesOf(const Zel::PackageInfoModel *package, const Zel::PackageModel::Edits &edits);

} // namespace Editor
