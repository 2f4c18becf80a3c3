#include "language_table.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QStringBuilder>

#include <algorithm>

namespace Zel {
namespace {

QString territoryName(const QLocale &locale) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 2, 0)
    return QLocale::territoryToString(locale.territory());
#else
    return QLocale::countryToString(locale.country());
#endif
}

/// A row gives the texts that Qt's locale data lack or tell differently from version to version.
RobotLanguage languageOf(const QJsonObject &row) {
    const auto text = [&row](const char *key, const QString &fallback = {}) {
        return row.value(QLatin1String(key)).toString(fallback);
    };
    const QString code = text("isoCode");
    const QLocale locale(code);
    const QString english = text("englishName", QLocale::languageToString(locale.language()));
    const QString name =
        code.contains(QLatin1Char('_'))
            ? english % QLatin1String(" (") % territoryName(locale) % QLatin1Char(')')
            : english;
    return {ISOCode(code),
            Name(text("name", name)),
            EnglishName(english),
            NativeName(text("nativeName", locale.nativeLanguageName())),
            NuanceCode(text("nuanceCode")),
            SoftwareVersionUtils::fromString(text("version"))};
}

RobotLanguages builtInLanguages() {
    QFile file(QStringLiteral(":/zel/language/languages.json"));
    const bool isOpen = file.open(QIODevice::ReadOnly);
    Q_ASSERT(isOpen);
    Q_UNUSED(isOpen)
    const auto rows = QJsonDocument::fromJson(file.readAll()).object();

    RobotLanguages languages;
    for (const auto &row : rows.value(QLatin1String("languages")).toArray())
        languages.push_back(languageOf(row.toObject()));
    std::sort(languages.begin(), languages.end(),
              [](const auto &a, const auto &b) { return a.isoCode() < b.isoCode(); });
    return languages;
}

} // namespace

LanguageTable &LanguageTable::instance() {
    static LanguageTable table;
    return table;
}

LanguageTable::LanguageTable() {
    for (const RobotLanguage &language : builtInLanguages())
        add(language);
    m_default = find(QStringLiteral("en_US"));
}

void LanguageTable::add(const RobotLanguage &language) {
    if (language.isoCode().isEmpty() || m_byCode.contains(language.isoCode()))
        return;
    m_byCode.insert(language.isoCode(), language);
    m_languages.push_back(language);
}

void LanguageTable::setDefaultLanguage(const RobotLanguage &language) {
    if (!language.isoCode().isEmpty())
        m_default = language;
}

} // namespace Zel
