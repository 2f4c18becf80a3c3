#include "suggestion.h"

#include <QCoreApplication>

namespace ZelPackage {

QString suggestion(const QString &given, const QStringList &words, const QString &otherwise) {
    const QString nearest = Zel::nearestWord(given, words);
    return nearest.isEmpty()
               ? otherwise
               : QCoreApplication::translate("zel-package", "; did you mean '%1'?").arg(nearest);
}

} // namespace ZelPackage
