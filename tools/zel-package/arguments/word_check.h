#pragma once

#include "console/console.h"

#include <QString>
#include <QStringList>

namespace ZelPackage {

/// Whether `word` is one of `known`. Where it is not, tells `refusal`, whose %1 is the word and
/// whose %2 is what it may have meant, or `hint` where no known word is near.
[[nodiscard]] bool checkWord(const QString &word, const QStringList &known, const QString &refusal,
                             const QString &hint, Console &console);

/// Whether an argument is text, that is, valid UTF-8. Reports one that is not.
[[nodiscard]] bool checkText(const QString &argument, Console &console);

} // namespace ZelPackage
