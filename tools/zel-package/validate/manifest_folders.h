#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace ZelPackage {

/// Expands arguments to manifests: a folder yields every manifest.xml in and below it, sorted,
/// without following links to folders. Other arguments are returned unchanged.
///
/// `report` receives folders that cannot be read or have no manifest, with the reason.
QStringList
manifestsOf(const QStringList &arguments,
            const std::function<void(const QString &folder, const QString &reason)> &report);

} // namespace ZelPackage
