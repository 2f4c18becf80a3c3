#pragma once

#include <QStringList>

namespace ZelPackage {

/// File names for a difference in the unified format that GNU patch accepts: relative to the
/// working directory or, if one of the files is outside, all relative to the root directory ("patch
/// -p0 -d /"), since patch refuses absolute names and "..". Symbolic links, which it refuses too,
/// are resolved.
///
/// Like git and GNU diff, quotes names with control characters, quotation marks, backslashes or
/// invalid UTF-8 as in C, and appends a tab to names with spaces.
QStringList patchNames(const QStringList &files);

} // namespace ZelPackage
