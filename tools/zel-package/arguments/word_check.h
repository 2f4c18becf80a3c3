#pragma once

#include "console/console.h"

#include <QString>
#include <QStringList>

namespace ZelPackage {

/// Whether `word` is one of `known`. If not, prints `refusal`, in which %1 is the word and %2 a
/// suggestion, or `hint` if no known word is similar.
[[nodiscard]] bool checkWord(const QString &word, const QStringList &known, const QString &refusal,
                             const QString &hint, Console &console);

/// Whether an argument is valid UTF-8; reports one that is not.
[[nodiscard]] bool checkText(const QString &argument, Console &console);

} // namespace ZelPackage
