#include "language_table.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QStringBuilder>

#include <algorithm>
#include <utility>

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
RobotLanguage makeLanguage(const QJsonObject &row) {
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

using Row = std::pair<QString, QJsonObject>; // with the code

std::vector<Row> readRows() {
    QFile file(QStringLiteral(":/zel/language/languages.json"));
    const bool isOpen = file.open(QIODevice::ReadOnly);
    Q_ASSERT(isOpen);
    Q_UNUSED(isOpen)
    std::vector<Row> rows;
    const auto content = QJsonDocument::fromJson(file.readAll()).object();
    for (const auto &value : content.value(QLatin1String("languages")).toArray()) {
        const QJsonObject row = value.toObject();
        rows.emplace_back(row.value(QLatin1String("isoCode")).toString(), row);
    }
    std::sort(rows.begin(), rows.end(),
              [](const Row &a, const Row &b) { return a.first < b.first; });
    return rows;
}

} // namespace

LanguageTable &LanguageTable::instance() {
    static LanguageTable table;
    return table;
}

// Most programs use few of the languages, and Qt's locale data are slow to read.
LanguageTable::LanguageTable() {
    for (const auto &[code, row] : readRows())
        append({code, {}, false, row});
    m_builtIn = m_entries.size();
    m_forgetAt = m_builtIn + leastGrowth;
    m_default = find(QStringLiteral("en_US"));
}

RobotLanguages LanguageTable::builtInLanguages() {
    RobotLanguages languages;
    for (std::size_t i = 0; i < m_builtIn; ++i)
        languages.push_back(languageOf(m_entries[i]));
    return languages;
}

QStringList LanguageTable::builtInCodes() const {
    QStringList codes;
    for (std::size_t i = 0; i < m_builtIn; ++i)
        codes += m_entries[i].code;
    return codes;
}

RobotLanguages LanguageTable::languages() {
    RobotLanguages languages;
    for (Entry &entry : m_entries) {
        if (entry.isKnown())
            languages.push_back(languageOf(entry));
    }
    return languages;
}

RobotLanguage LanguageTable::find(const QString &isoCode) {
    const auto found = m_indexes.constFind(isoCode);
    if (found == m_indexes.constEnd() || !m_entries[*found].isKnown())
        return {};
    return languageOf(m_entries[*found]);
}

void LanguageTable::add(const RobotLanguage &language) {
    if (language.isoCode().isEmpty())
        return;
    const auto found = m_indexes.constFind(language.isoCode());
    if (found == m_indexes.constEnd()) {
        append({language.isoCode(), language});
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
        return languageOf(m_entries[*found]);
    if (m_entries.size() >= m_forgetAt)
        forgetUnused();
    append({isoCode, {ISOCode(isoCode), NuanceCode()}, true});
    return m_entries.back().language;
}

const RobotLanguage &LanguageTable::languageOf(Entry &entry) {
    if (!entry.row.isEmpty())
        entry.language = makeLanguage(std::exchange(entry.row, {}));
    return entry.language;
}

void LanguageTable::append(Entry entry) {
    m_indexes.insert(entry.code, m_entries.size());
    m_entries.push_back(std::move(entry));
}

// Waits until the table has doubled, which keeps the amortized cost per registration constant.
void LanguageTable::forgetUnused() {
    const auto isUnknown = [](const Entry &entry) { return !entry.isKnown(); };
    m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(), isUnknown), m_entries.end());
    m_indexes.clear();
    for (std::size_t i = 0; i < m_entries.size(); ++i)
        m_indexes.insert(m_entries[i].code, i);
    m_forgetAt = 2 * m_entries.size() + leastGrowth;
}

void LanguageTable::setDefaultLanguage(const RobotLanguage &language) {
    if (!language.isoCode().isEmpty())
        m_default = language;
}

} // namespace Zel
