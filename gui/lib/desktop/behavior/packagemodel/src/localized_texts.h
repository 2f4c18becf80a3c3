#pragma once

#include "by_language.h"
#include "copies.h"
#include "decoded_on_use.h"

#include <packagemodel/text_conversion.h>

#include <tano/text_maps.h>
#include <zel/language.h>

#include <algorithm>
#include <set>
#include <string>
#include <utility>

/// Converts between the language codes of records and the language descriptors of models.
namespace Zel {

/// The language of a code. An unknown code becomes a partial language while it is in use, so that
/// its texts are kept and shown.
RobotLanguage languageFromCode(const std::string &code);
RobotLanguages languagesFromCodes(const std::vector<std::string> &codes);
/// Whether the code is of a built-in language, which stays known without being in use.
bool isBuiltIn(const std::string &code);
template<typename Map>
bool areBuiltIn(const Map &byCode) {
    return std::all_of(byCode.begin(), byCode.end(),
                       [](const auto &entry) { return isBuiltIn(entry.first); });
}
/// The records' key for a language.
std::string codeOf(const RobotLanguage &language);
std::set<std::string> codesOf(const RobotLanguages &languages);

using CachedTexts = ByLanguage<std::pair<QString, RobotLanguage>>;
using CachedLists = ByLanguage<std::pair<QStringList, RobotLanguage>>;

Language::LocalizedStrings textsFromRecord(const Tano::TextMap &texts);
Language::LocalizedStringLists listsFromRecord(const Tano::TextListMap &lists);
QStringList listFromRecord(const std::vector<std::string> &list);

/// The cached value of a language, or an empty value.
template<typename Value>
Value valueFor(const ByLanguage<std::pair<Value, RobotLanguage>> &values,
               const RobotLanguage &language) {
    const auto *entry = values.find(language);
    return entry ? entry->first : Value();
}

/// The cached value of a language, added if needed.
template<typename Value>
Value &madeValue(ByLanguage<std::pair<Value, RobotLanguage>> &values,
                 const RobotLanguage &language) {
    auto *entry = values.find(language);
    return entry ? entry->first : values.append({Value(), language}).first;
}

/// Drops the cached values of other languages.
template<typename Values>
void keepOnly(const ByLanguage<RobotLanguage> &languages, Values &values) {
    values.removeIf([&](const RobotLanguage &language) { return !languages.contains(language); });
}

/// The same for values that may not be decoded yet; the record's texts are dropped with them.
template<typename Values, typename Record>
void keepOnly(const ByLanguage<RobotLanguage> &languages, DecodedOnUse<Values, Record> &cache) {
    if (cache.isDecoded())
        keepOnly(languages, cache.values());
}

inline CachedTexts &valuesOf(CachedTexts &cache) {
    return cache;
}
template<typename Values, typename Record>
Values &valuesOf(DecodedOnUse<Values, Record> &cache) {
    return cache.values();
}

/// One kind of text per language: the record's operations, the cache, and the setter's
/// notification.
template<typename Model, typename Data, typename Record, typename Cache>
struct LocalizedField {
    const Tano::TextMap &(Record::*texts)() const;
    const std::string &(Record::*text)(const std::string &code) const;
    void (Record::*setText)(const std::string &text, const std::string &code);
    bool (Record::*removeText)(const std::string &code);
    Cache Data::*cache;
    void (Model::*updated)(const QString &text, const RobotLanguage &language);
};

/// Sets a text unless the record already has it.
template<typename Model, typename Data, typename Record, typename Cache>
void setText(Data &data, const LocalizedField<Model, Data, Record, Cache> &field,
             const QString &newText, const RobotLanguage &inLanguage) {
    const std::string code = codeOf(inLanguage);
    const std::string bytes = toUtf8(newText);
    if ((data.record().*field.text)(code) == bytes)
        return;
    const QString text = copyOf(newText);
    const RobotLanguage language = copyOf(inLanguage);
    CachedTexts &cache = valuesOf(data.*field.cache);
    data.editAnnounced([&](Record &record) { (record.*field.setText)(bytes, code); });
    madeValue(cache, language) = text;
    data.announce(field.updated, text, language);
}

/// Removes a text, announced as a change to the empty text. Returns false if there is none.
template<typename Model, typename Data, typename Record, typename Cache>
bool removeText(Data &data, const LocalizedField<Model, Data, Record, Cache> &field,
                const RobotLanguage &inLanguage) {
    const RobotLanguage language = copyOf(inLanguage);
    const std::string code = codeOf(language);
    if ((data.record().*field.texts)().count(code) == 0)
        return false;
    CachedTexts &cache = valuesOf(data.*field.cache);
    data.editAnnounced([&](Record &record) { (record.*field.removeText)(code); });
    cache.remove(language);
    data.announce(field.updated, QString(), language);
    return true;
}

} // namespace Zel
