#include "language_argument.h"

#include "suggestion.h"

#include <zel/language.h>

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

namespace ZelPackage {
namespace {

bool looksLikeCode(const QString &text) {
    static const QRegularExpression form(QRegularExpression::anchoredPattern(QStringLiteral(
        "[a-z]{2,3}(_[A-Z][a-z]{3})?(_([A-Z]{2}|[0-9]{3}))?(-x(-[a-z0-9]{1,8})+)?")));
    return form.match(text).hasMatch();
}

// The codes of the languages with this English or native name, else the most similar code.
QStringList nearCodes(const QString &text) {
    QStringList named;
    QStringList codes;
    for (const Zel::RobotLanguage &language : Zel::Language::knownLanguages()) {
        codes += language.isoCode();
        const bool isNamed = language.englishName().startsWith(text, Qt::CaseInsensitive) ||
                             language.nativeName().startsWith(text, Qt::CaseInsensitive);
        if (text.size() > 2 && isNamed)
            named += language.isoCode();
    }
    if (named.isEmpty())
        named += Zel::nearestWord(QString(text).replace(u'-', u'_'), codes);
    named.removeAll({});
    return named;
}

} // namespace

std::optional<Zel::RobotLanguage> languageArgument(const QString &code, QString &message) {
    message.clear();
    const Zel::RobotLanguage known = Zel::robotLanguage(code);
    if (!known.isoCode().isEmpty())
        return known;
    if (looksLikeCode(code)) {
        message = QCoreApplication::translate(
                      "zel-package", "The language '%1' is unknown, but its code is accepted.")
                      .arg(code);
        return Zel::RobotLanguage(Zel::ISOCode(code), Zel::NuanceCode());
    }
    const QStringList near = nearCodes(code);
    message = near.isEmpty()
                  ? QCoreApplication::translate("zel-package",
                                                "'%1' is not a language code; 'zel-package "
                                                "languages' lists the known codes.")
                        .arg(code)
                  : QCoreApplication::translate("zel-package",
                                                "'%1' is not a language code; did you mean %2?")
                        .arg(code, near.join(QStringLiteral(", ")));
    return {};
}

std::optional<Zel::RobotLanguage> languageArgument(const QString &code, Console &console) {
    QString message;
    auto language = languageArgument(code, message);
    if (!message.isEmpty())
        console.printMessage(message);
    return language;
}

} // namespace ZelPackage
