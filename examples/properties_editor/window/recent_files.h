#pragma once

#include <QStringList>

namespace Editor {

/// The recently opened manifests, latest first; some may no longer exist.
QStringList recentFiles();
/// Moves a file to the front.
void rememberFile(const QString &fileName);

} // namespace Editor
