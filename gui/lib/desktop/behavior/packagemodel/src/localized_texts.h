#pragma once

#include "copies.h"

#include <packagemodel/text_conversion.h>

#include <tano/text_maps.h>
#include <zel/language.h>

#include <QObject>

#include <algorithm>
#include <string>
#include <utility>

/// Between the language codes of the records and the language descriptors of the models.
namespace Zel {

/// The language of a code. A code that the language table does not know is registered there as a
/// partial language, so that its texts are kept and shown.
[[nodiscard]] RobotLanguage languageFromCode(const std::string &code);
[[nodiscard]] RobotLanguages languagesFromCodes(const std::vector<std::string> &codes);
/// The key under which the records keep what belongs to a language.
[[nodiscard]] std::string codeOf(const RobotLanguage &language);

[[nodiscard]] Language::LocalizedStrings textsFromRecord(const Tano::TextMap &texts);
[[nodiscard]] Language::LocalizedStringLists listsFromRecord(const Tano::TextListMap &lists);
[[nodiscard]] QStringList listFromRecord(const std::vector<std::string> &list);

/// What a list holds for a language; the null text, or the empty list, when that is nothing.
[[nodiscard]] QString valueFor(const Language::LocalizedStrings &values,
                               const RobotLanguage &language);
[[nodiscard]] QStringList valueFor(const Language::LocalizedStringLists &values,
                                   const RobotLanguage &language);

[[nodiscard]] bool contains(const RobotLanguages &languages, const RobotLanguage &language);

/// Erases what a list holds for other languages.
template<typename Values>
void keepOnly(const RobotLanguages &languages, Values &values) {
    const auto isForeign = [&](const auto &value) { return !contains(languages, value.second); };
    values.erase(std::remove_if(values.begin(), values.end(), isForeign), values.end());
}

/// One kind of text per language: the operations of the record behind it, the cache, and the
/// notification that its setter sends.
template<typename Model, typename Data, typename Record>
struct LocalizedField {
    const std::string &(Record::*text)(const std::string &code) const;
    void (Record::*setText)(const std::string &text, const std::string &code);
    Language::LocalizedStrings Data::*cache;
    void (Model::*updated)(const QString &text, const RobotLanguage &language);
};

/// Sets a text, unless the record has the very same one.
template<typename Model, typename Data, typename Record>
void setText(Model *model, Data &data, const LocalizedField<Model, Data, Record> &field,
             const QString &newText, const RobotLanguage &inLanguage) {
    const std::string code = codeOf(inLanguage);
    const std::string bytes = toUtf8(newText);
    if ((data.record().*field.text)(code) == bytes)
        return;
    const QString text = copyOf(newText);
    const RobotLanguage language = copyOf(inLanguage);
    (data.edit().*field.setText)(bytes, code);
    Language::setValue(data.*field.cache, text, language);
    Q_EMIT(model->*field.updated)(text, language);
}

} // namespace Zel
