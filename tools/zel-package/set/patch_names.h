#pragma once

#include <QStringList>

namespace ZelPackage {

/// The names of files as a difference in the unified format gives them, so that GNU patch finds the
/// files: relative to the working directory or, if one of the files is not below it, all relative
/// to the root directory ("patch -p0 -d /"), since patch refuses absolute names and "..".
/// Symbolic links, which it refuses too, are followed.
///
/// As git and GNU diff do, names with control characters, quotation marks, backslashes or bytes
/// that are not UTF-8 are quoted as in C, and a tab follows a name with spaces.
QStringList patchNames(const QStringList &files);

} // namespace ZelPackage
