#pragma once

#include "console.h"

#include <QString>

#include <string>
#include <vector>

namespace ZelPackage {

/// The difference of two UTF-8 texts in the unified format with three lines of context, as POSIX
/// diff -u writes and patch reads; empty if they are equal. Both texts have the name `name`, see
/// patchNames(). On a terminal, output is styled and made printable by Console::shown(); elsewhere
/// lines are unchanged, so that patch can apply them.
QString unifiedDiff(const QString &name, const std::string &before, const std::string &after,
                    const Console &console);

/// A range of lines and its replacement.
struct LineChange {
    int firstLine;     ///< counted from 1; for an insertion, the following line
    int count;         ///< the number of replaced lines
    std::string lines; ///< the replacement, with line feeds
};

/// The changes between two texts, from the first line to the last.
std::vector<LineChange> lineChanges(const std::string &before, const std::string &after);

} // namespace ZelPackage
