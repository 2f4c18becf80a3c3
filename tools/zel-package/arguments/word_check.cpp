#include "word_check.h"

#include "suggestion.h"

namespace ZelPackage {

bool checkWord(const QString &word, const QStringList &known, const QString &refusal,
               const QString &hint, Console &console) {
    if (known.contains(word))
        return true;
    console.tell(refusal.arg(word, suggestion(word, known, hint)));
    return false;
}

} // namespace ZelPackage
