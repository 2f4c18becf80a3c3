#pragma once

#include "console.h"

#include <QString>

#include <string>

namespace ZelPackage {

/// The changes that lead from one UTF-8 text to another, in the unified format with three lines of
/// context, which POSIX diff -u writes and patch reads; empty when there are none. `name`, as in
/// patchNames(), is that of both texts. On a terminal it is styled, and lines are shown by
/// Console::shown(); elsewhere the lines are unchanged, so that patch can apply them.
QString unifiedDiff(const QString &name, const std::string &before, const std::string &after,
                    const Console &console);

} // namespace ZelPackage
