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

constexpr std::size_t leastGrowth = 64;

QString territoryName(const QLocale &locale) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 2, 0)
    return QLocale::territoryToString(locale.territory());
#else
    return QLocale::countryToString(locale.country());
#endif
}

/// A row only has the texts that Qt's locale data lack or that vary between Qt versions.
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

RobotLanguages readLanguages() {
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
    for (const RobotLanguage &language : readLanguages())
        add(language);
    m_builtIn = m_entries.size();
    m_forgetAt = m_builtIn + leastGrowth;
    m_default = find(QStringLiteral("en_US"));
}

RobotLanguages LanguageTable::builtInLanguages() const {
    RobotLanguages languages;
    for (std::size_t i = 0; i < m_builtIn; ++i)
        languages.push_back(m_entries[i].language);
    return languages;
}

RobotLanguages LanguageTable::languages() const {
    RobotLanguages languages;
    for (const Entry &entry : m_entries) {
        if (entry.isKnown())
            languages.push_back(entry.language);
    }
    return languages;
}

RobotLanguage LanguageTable::find(const QString &isoCode) const {
    const auto found = m_indexes.constFind(isoCode);
    if (found == m_indexes.constEnd() || !m_entries[*found].isKnown())
        return {};
    return m_entries[*found].language;
}

void LanguageTable::add(const RobotLanguage &language) {
    if (language.isoCode().isEmpty())
        return;
    const auto found = m_indexes.constFind(language.isoCode());
    if (found == m_indexes.constEnd()) {
        append(language, false);
        return;
    }
    Entry &entry = m_entries[*found];
    if (!entry.isKnown())
        entry.language = language;
    entry.isLent = false;
}

RobotLanguage LanguageTable::findOrLend(const QString &isoCode) {
    if (isoCode.isEmpty())
        return {};
    const auto found = m_indexes.constFind(isoCode);
    if (found != m_indexes.constEnd())
        return m_entries[*found].language;
    if (m_entries.size() >= m_forgetAt)
        forgetUnused();
    append({ISOCode(isoCode), NuanceCode()}, true);
    return m_entries.back().language;
}

void LanguageTable::append(const RobotLanguage &language, bool isLent) {
    m_indexes.insert(language.isoCode(), m_entries.size());
    m_entries.push_back({language, isLent});
}

// Waits until the table has doubled, which keeps the amortized cost per registration constant.
void LanguageTable::forgetUnused() {
    const auto isUnknown = [](const Entry &entry) { return !entry.isKnown(); };
    m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(), isUnknown), m_entries.end());
    m_indexes.clear();
    for (std::size_t i = 0; i < m_entries.size(); ++i)
        m_indexes.insert(m_entries[i].language.isoCode(), i);
    m_forgetAt = 2 * m_entries.size() + leastGrowth;
}

void LanguageTable::setDefaultLanguage(const RobotLanguage &language) {
    if (!language.isoCode().isEmpty())
        m_default = language;
}

} // namespace Zel
