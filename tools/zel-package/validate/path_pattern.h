#pragma once

#include <QString>

namespace ZelPackage {

/// Whether a path matches a pattern: `*`, `?` and `[...]` match within a name as in POSIX
/// fnmatch(), `**` matches any number of folders, as in `third-party/**`.
bool matchesPath(const QString &pattern, const QString &path);

} // namespace ZelPackage
