#pragma once

#include "console.h"

#include <QString>

#include <string>
#include <vector>

namespace ZelPackage {

/// The changes that lead from one UTF-8 text to another, in the unified format with three lines of
/// context, which POSIX diff -u writes and patch reads; empty when there are none. `name`, as in
/// patchNames(), is that of both texts. On a terminal it is styled, and lines are shown by
/// Console::shown(); elsewhere the lines are unchanged, so that patch can apply them.
QString unifiedDiff(const QString &name, const std::string &before, const std::string &after,
                    const Console &console);

/// Lines of a text that give way to others.
struct LineChange {
    int firstLine;     ///< counted from 1; for an insertion, the line that follows it
    int count;         ///< of the lines that are replaced
    std::string lines; ///< the new ones, each with its line feed
};

/// The changes that lead from one text to another, from the first line to the last.
std::vector<LineChange> lineChanges(const std::string &before, const std::string &after);

} // namespace ZelPackage
