#pragma once

#include <packagemodel/package_edits.h>

#include <QStringList>

namespace Editor {

/// What edits change in a package, for people.
struct ChangeList {
    QStringList lines;
    QVector<Tano::FieldPath> paths; ///< of the fields that change, one for each line
    QString error;                  ///< why the package does not take the edits; empty if it does
};

/// The changes in the order of the manifest; what the edits take back themselves is not among them.
ChangeList changesOf(const Zel::PackageInfoModel *package, const Zel::PackageModel::Edits &edits);
/// The changes from one package to another.
ChangeList changesBetween(const Zel::PackageInfoModel &from, const Zel::PackageInfoModel &to);

} // namespace Editor
