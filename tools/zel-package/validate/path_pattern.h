#pragma once

#include <QString>

namespace ZelPackage {

/// Whether a path matches a pattern: `*`, `?` and `[...]` as in POSIX fnmatch() within the name of
/// a file or folder, and `**` for any number of folders, as in `third-party/**`.
bool matchesPath(const QString &pattern, const QString &path);

} // namespace ZelPackage
