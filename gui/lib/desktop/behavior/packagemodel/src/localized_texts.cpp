#include "localized_texts.h"

#include <unordered_set>

namespace Zel {

RobotLanguage languageFromCode(const std::string &code) {
    return Language::languageInUse(fromUtf8(code));
}

RobotLanguages languagesFromCodes(const std::vector<std::string> &codes) {
    RobotLanguages languages;
    languages.reserve(codes.size());
    for (const std::string &code : codes)
        languages.push_back(languageFromCode(code));
    return languages;
}

bool isBuiltIn(const std::string &code) {
    static const auto builtIn = [] {
        std::unordered_set<std::string> codes;
        for (const QString &code : Language::builtInCodes())
            codes.insert(toUtf8(code));
        return codes;
    }();
    return builtIn.count(code) != 0;
}

std::string codeOf(const RobotLanguage &language) {
    return toUtf8(language.isoCode());
}

std::set<std::string> codesOf(const RobotLanguages &languages) {
    std::set<std::string> codes;
    for (const RobotLanguage &language : languages)
        codes.insert(codeOf(language));
    return codes;
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

} // namespace Zel
