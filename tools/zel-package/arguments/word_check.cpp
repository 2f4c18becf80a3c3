#include "word_check.h"

#include "native_text.h"
#include "suggestion.h"

#include <QCoreApplication>

namespace ZelPackage {

bool checkWord(const QString &word, const QStringList &known, const QString &refusal,
               const QString &hint, Console &console) {
    if (known.contains(word))
        return true;
    console.printMessage(refusal.arg(word, suggestion(word, known, hint)));
    return false;
}

bool checkText(const QString &argument, Console &console) {
    if (!hasForeignBytes(argument))
        return true;
    console.printMessage(
        QCoreApplication::translate("zel-package", "The argument '%1' is not valid UTF-8.")
            .arg(argument));
    return false;
}

} // namespace ZelPackage
