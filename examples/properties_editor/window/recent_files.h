#pragma once

#include <QStringList>

namespace Editor {

/// The manifests that were open last, the latest first; some may be gone.
QStringList recentFiles();
/// Puts a file in front.
void rememberFile(const QString &fileName);

} // namespace Editor
