#pragma once

#include <QStringList>

namespace ZelPackage {

/// Completes the last of the words, for the scripts beside this file. `words` are the program's
/// arguments so far, the last of which may be empty. Each candidate starts with it; candidates that
/// end with "=", "[", "." or "," need more input. Empty if only a file name fits.
QStringList completions(const QStringList &words);

} // namespace ZelPackage
