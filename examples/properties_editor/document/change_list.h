#pragma once

#include <packagemodel/package_edits.h>

#include <QStringList>

namespace Editor {

/// Changes to a package in words.
struct ChangeList {
    QStringList lines;
    QVector<Tano::FieldPath> paths; ///< of the changed fields, one per line
    QString error;                  ///< why the edits cannot be applied; else empty
};

/// The net changes of edits, in manifest order.
ChangeList changesOf(Zel::PackageInfoModel *package, const Zel::PackageModel::Edits &edits);
/// The changes from one package to another.
ChangeList changesBetween(const Zel::PackageInfoModel &from, const Zel::PackageInfoModel &to);

} // namespace Editor
