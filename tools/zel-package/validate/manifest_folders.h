#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace ZelPackage {

/// The manifests that arguments mean: a folder is every file manifest.xml in it and below it, in
/// ascending order; links to folders are not followed. Anything else is itself.
///
/// `report` gets each folder that cannot be read or has no manifest, and why.
QStringList
manifestsOf(const QStringList &arguments,
            const std::function<void(const QString &folder, const QString &trouble)> &report);

} // namespace ZelPackage
