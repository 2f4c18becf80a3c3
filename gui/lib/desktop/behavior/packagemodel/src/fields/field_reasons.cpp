#include "field_tables.h"

#include <packagemodel/near_words.h>

namespace Zel::PackageModel {
namespace {

// Suggests what a word may have meant: the nearest alternative, else the first ones.
QString alternatives(const QString &word, const QStringList &words, const QString &listing) {
    constexpr int most = 8;
    const QString nearest = nearestWord(word, words);
    if (!nearest.isEmpty())
        return QCoreApplication::translate("Zel::PackageModel", "; did you mean '%1'?")
            .arg(nearest);
    if (words.isEmpty())
        return QStringLiteral(".");
    QString list = words.mid(0, most).join(QStringLiteral(", "));
    if (words.size() > most)
        list += QStringLiteral(", \u2026");
    return listing.arg(list);
}

QString noItem(const FieldList &list, const QString &selector) {
    if (const auto keys = list.keys())
        return QCoreApplication::translate("Zel::PackageModel", "There is no '%1'%2")
            .arg(selector, alternatives(selector, *keys,
                                        QCoreApplication::translate("Zel::PackageModel",
                                                                    "; available: %1.")));
    if (list.size() == 0)
        return QCoreApplication::translate("Zel::PackageModel",
                                           "There is no item '%1': the list is empty.")
            .arg(selector);
    return QCoreApplication::translate("Zel::PackageModel",
                                       "There is no item '%1'; there are 0 to %2.")
        .arg(selector, QString::number(list.size() - 1));
}

} // namespace

QString noFieldNamed(const QString &name, const QStringList &names) {
    return QCoreApplication::translate("Zel::PackageModel", "There is no field '%1'%2")
        .arg(name, alternatives(
                       name, names,
                       QCoreApplication::translate("Zel::PackageModel", "; the fields are %1.")));
}

// Finds the longest prefix of the path that leads to a list; that list lacks the next item.
QString reasonOf(PackageInfoModel &package, const FieldPath &path) {
    QString error;
    if (!formOf(path, &error))
        return error;
    for (FieldPath part = path; !part.isEmpty(); part = part.parent()) {
        const auto &selectors = part.steps().back().selectors;
        if (selectors.empty())
            continue;
        const FieldTarget target = targetOf(package, part.parent());
        if (target.list)
            return noItem(*target.list, fromUtf8(selectors.back().text));
    }
    return QCoreApplication::translate("Zel::PackageModel", "It does not exist.");
}

} // namespace Zel::PackageModel
