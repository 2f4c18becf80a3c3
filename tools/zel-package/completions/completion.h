#pragma once

#include <QStringList>

namespace ZelPackage {

/// What the last of the words can be completed to, for the scripts beside this file. `words` are
/// the arguments of the program as far as they are typed, the last of them maybe empty. Each
/// candidate begins with it; one that ends with "=", "[", "." or "," is to be continued. None where
/// only the name of a file fits.
QStringList completions(const QStringList &words);

} // namespace ZelPackage
