#include "localized_texts.h"

#include <algorithm>
#include <unordered_map>

namespace Zel {
namespace {

RobotLanguage registeredLanguage(const QString &code) {
    RobotLanguage known = robotLanguage(ISOCode(code));
    if (!known.isoCode().isEmpty())
        return known;
    RobotLanguage partial{ISOCode(code), NuanceCode()};
    partial.setVersion(known.version());
    Language::addPartialLanguage(partial);
    return partial;
}

template<typename Value>
Value valueIn(const std::vector<std::pair<Value, RobotLanguage>> &values,
              const RobotLanguage &language) {
    const auto found = std::find_if(values.begin(), values.end(),
                                    [&](const auto &value) { return value.second == language; });
    return found == values.end() ? Value() : found->first;
}

} // namespace

RobotLanguage languageFromCode(const std::string &code) {
    // Asked for every text of every behavior. Nothing ever leaves the language table, so what it
    // once answered stays right.
    static std::unordered_map<std::string, RobotLanguage> answers;
    const auto found = answers.find(code);
    if (found != answers.end())
        return found->second;
    return answers.emplace(code, registeredLanguage(fromUtf8(code))).first->second;
}

RobotLanguages languagesFromCodes(const std::vector<std::string> &codes) {
    RobotLanguages languages;
    languages.reserve(codes.size());
    for (const std::string &code : codes)
        languages.push_back(languageFromCode(code));
    return languages;
}

std::string codeOf(const RobotLanguage &language) {
    return toUtf8(language.isoCode());
}

Language::LocalizedStrings textsFromRecord(const Tano::TextMap &texts) {
    Language::LocalizedStrings values;
    values.reserve(texts.size());
    for (const auto &[code, text] : texts)
        values.emplace_back(fromUtf8(text), languageFromCode(code));
    return values;
}

Language::LocalizedStringLists listsFromRecord(const Tano::TextListMap &lists) {
    Language::LocalizedStringLists values;
    values.reserve(lists.size());
    for (const auto &[code, list] : lists)
        values.emplace_back(listFromRecord(list), languageFromCode(code));
    return values;
}

QStringList listFromRecord(const std::vector<std::string> &list) {
    QStringList texts;
    texts.reserve(static_cast<int>(list.size()));
    for (const std::string &text : list)
        texts.append(fromUtf8(text));
    return texts;
}

QString valueFor(const Language::LocalizedStrings &values, const RobotLanguage &language) {
    return valueIn(values, language);
}

QStringList valueFor(const Language::LocalizedStringLists &values, const RobotLanguage &language) {
    return valueIn(values, language);
}

bool contains(const RobotLanguages &languages, const RobotLanguage &language) {
    return std::find(languages.begin(), languages.end(), language) != languages.end();
}

} // namespace Zel
