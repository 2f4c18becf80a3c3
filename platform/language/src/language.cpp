#include "zel/language.h"

#include "language_table.h"

#include <algorithm>

namespace Zel::Language {
namespace {

template<typename Values>
auto entryOf(Values &values, const RobotLanguage &language) {
    return std::find_if(values.begin(), values.end(),
                        [&language](const auto &entry) { return entry.second == language; });
}

bool holdsIndex(const QStringList &list, int index) {
    return index >= 0 && index < list.size();
}

QStringList &madeListOf(LocalizedStringLists &values, const RobotLanguage &language) {
    const auto entry = entryOf(values, language);
    return entry != values.end() ? entry->first
                                 : values.emplace_back(QStringList(), language).first;
}

} // namespace

RobotLanguages knownLanguages() {
    return LanguageTable::instance().languages();
}

RobotLanguages builtInLanguages() {
    return LanguageTable::instance().builtInLanguages();
}

QStringList builtInCodes() {
    return LanguageTable::instance().builtInCodes();
}

void addPartialLanguage(const RobotLanguage &language) {
    LanguageTable::instance().add(language);
}

RobotLanguage languageInUse(const QString &isoCode) {
    return LanguageTable::instance().findOrLend(isoCode);
}

RobotLanguage defaultLanguage() {
    return LanguageTable::instance().defaultLanguage();
}

void setDefaultLanguage(const RobotLanguage &language) {
    LanguageTable::instance().setDefaultLanguage(language);
}

void removeLanguage(RobotLanguages &languages, const RobotLanguage &language) {
    const auto it = std::find(languages.begin(), languages.end(), language);
    if (it != languages.end())
        languages.erase(it);
}

void setValue(LocalizedStrings &values, const QString &text, const RobotLanguage &language) {
    const auto entry = entryOf(values, language);
    if (entry != values.end())
        entry->first = text;
    else
        values.emplace_back(text, language);
}

void addValue(LocalizedStringLists &values, const QString &value, const RobotLanguage &language) {
    madeListOf(values, language).append(value);
}

void insertValue(LocalizedStringLists &values, int index, const QString &value,
                 const RobotLanguage &language) {
    QStringList &list = madeListOf(values, language);
    list.insert(std::clamp(index, 0, static_cast<int>(list.size())), value);
}

void updateValue(LocalizedStringLists &values, int index, const QString &value,
                 const RobotLanguage &language) {
    const auto entry = entryOf(values, language);
    if (entry != values.end() && holdsIndex(entry->first, index))
        entry->first.replace(index, value);
}

void removeValue(LocalizedStringLists &values, int index, const RobotLanguage &language) {
    const auto entry = entryOf(values, language);
    if (entry == values.end() || !holdsIndex(entry->first, index))
        return;
    entry->first.removeAt(index);
    if (entry->first.isEmpty())
        values.erase(entry);
}

} // namespace Zel::Language
