#include <packagemodel/behavior_info_model.h>

#include "behavior_info_data.h"
#include "copies.h"
#include "localized_texts.h"

#include <packagemodel/text_conversion.h>

#include <algorithm>
#include <type_traits>

namespace Zel {
namespace {

std::string recordKey(const RobotLanguage &language) {
    return codeOf(language);
}

std::string recordKey(const QString &purpose) {
    return toUtf8(purpose);
}

// How the record is told which item is meant: by its value, and by which of the equal ones it is.
struct RecordItem {
    std::string value;
    int occurrence = 0;
};

RecordItem itemAt(const Tano::TextListMap &lists, const std::string &key, int index,
                  const QString &cachedValue) {
    const auto found = lists.find(key);
    if (found == lists.end() || index >= static_cast<int>(found->second.size()))
        return {toUtf8(cachedValue)};
    const auto item = found->second.begin() + index;
    return {*item, static_cast<int>(std::count(found->second.begin(), item, *item))};
}

bool isOutside(int index, const QStringList &list) {
    return index < 0 || index >= list.size();
}

// Conditions have no cache to edit.
template<typename Key, typename Data, typename Kind, typename Edit>
void editCache(Data &data, const Kind &kind, Edit edit) {
    if constexpr (std::is_same_v<Key, RobotLanguage>)
        edit(data.*kind.cache);
}

std::vector<std::string> codesOf(const RobotLanguages &languages) {
    std::vector<std::string> codes;
    codes.reserve(languages.size());
    for (const RobotLanguage &language : languages)
        codes.push_back(codeOf(language));
    return codes;
}

} // namespace

const BehaviorInfoModel::Data::ListKind<RobotLanguage> BehaviorInfoModel::Data::tagKind{
    &Tano::BehaviorInfo::languagesToTags, &Tano::BehaviorInfo::addTag,
    &Tano::BehaviorInfo::insertTag,       &Tano::BehaviorInfo::updateTag,
    &Tano::BehaviorInfo::removeTag,       &Data::tags,
    &BehaviorInfoModel::tagAdded,         &BehaviorInfoModel::tagInserted,
    &BehaviorInfoModel::tagUpdated,       &BehaviorInfoModel::tagRemoved};

const BehaviorInfoModel::Data::ListKind<RobotLanguage> BehaviorInfoModel::Data::triggerSentenceKind{
    &Tano::BehaviorInfo::languagesToTriggerSentences, &Tano::BehaviorInfo::addTriggerSentence,
    &Tano::BehaviorInfo::insertTriggerSentence,       &Tano::BehaviorInfo::updateTriggerSentence,
    &Tano::BehaviorInfo::removeTriggerSentence,       &Data::triggerSentences,
    &BehaviorInfoModel::triggerSentenceAdded,         &BehaviorInfoModel::triggerSentenceInserted,
    &BehaviorInfoModel::triggerSentenceUpdated,       &BehaviorInfoModel::triggerSentenceRemoved};

const BehaviorInfoModel::Data::ListKind<RobotLanguage> BehaviorInfoModel::Data::loadingResponseKind{
    &Tano::BehaviorInfo::languagesToLoadingResponses, &Tano::BehaviorInfo::addLoadingResponse,
    &Tano::BehaviorInfo::insertLoadingResponse,       &Tano::BehaviorInfo::updateLoadingResponse,
    &Tano::BehaviorInfo::removeLoadingResponse,       &Data::loadingResponses,
    &BehaviorInfoModel::loadingResponseAdded,         &BehaviorInfoModel::loadingResponseInserted,
    &BehaviorInfoModel::loadingResponseUpdated,       &BehaviorInfoModel::loadingResponseRemoved};

const BehaviorInfoModel::Data::ListKind<QString> BehaviorInfoModel::Data::conditionKind{
    &Tano::BehaviorInfo::purposesToConditions, &Tano::BehaviorInfo::addCondition,
    &Tano::BehaviorInfo::insertCondition,      &Tano::BehaviorInfo::updateCondition,
    &Tano::BehaviorInfo::removeCondition,      nullptr,
    &BehaviorInfoModel::conditionAdded,        &BehaviorInfoModel::conditionInserted,
    &BehaviorInfoModel::conditionUpdated,      &BehaviorInfoModel::conditionRemoved};

QStringList BehaviorInfoModel::Data::list(const ListKind<RobotLanguage> &kind,
                                          const RobotLanguage &language) const {
    return valueFor(this->*kind.cache, language);
}

QStringList BehaviorInfoModel::Data::list(const ListKind<QString> &, const QString &purpose) const {
    return listFromRecord(record().conditions(toUtf8(purpose)));
}

template<typename Key>
bool BehaviorInfoModel::Data::add(const ListKind<Key> &kind, const QString &newValue,
                                  const Key &inKey) {
    if (list(kind, inKey).contains(newValue))
        return false;
    const QString value = copyOf(newValue);
    const Key key = copyOf(inKey);
    (edit().*kind.add)(toUtf8(value), recordKey(key));
    editCache<Key>(*this, kind, [&](auto &cache) { Language::addValue(cache, value, key); });
    Q_EMIT(model->*kind.added)(value, key);
    return true;
}

template<typename Key>
bool BehaviorInfoModel::Data::insert(const ListKind<Key> &kind, const QString &newValue,
                                     const Key &inKey, int index) {
    if (list(kind, inKey).contains(newValue))
        return false;
    const QString value = copyOf(newValue);
    const Key key = copyOf(inKey);
    (edit().*kind.insert)(toUtf8(value), recordKey(key), index);
    editCache<Key>(*this, kind,
                   [&](auto &cache) { Language::insertValue(cache, index, value, key); });
    Q_EMIT(model->*kind.inserted)(value, key, static_cast<int>(list(kind, key).indexOf(value)));
    return true;
}

template<typename Key>
bool BehaviorInfoModel::Data::update(const ListKind<Key> &kind, int index, const QString &newValue,
                                     const Key &inKey) {
    const QStringList current = list(kind, inKey);
    if (isOutside(index, current))
        return false;
    const QString value = copyOf(newValue);
    const Key key = copyOf(inKey);
    const std::string code = recordKey(key);
    const RecordItem item = itemAt((record().*kind.lists)(), code, index, current.at(index));
    (edit().*kind.update)(item.value, toUtf8(value), code, item.occurrence);
    editCache<Key>(*this, kind,
                   [&](auto &cache) { Language::updateValue(cache, index, value, key); });
    Q_EMIT(model->*kind.updated)(index, value, key);
    return true;
}

template<typename Key>
bool BehaviorInfoModel::Data::remove(const ListKind<Key> &kind, int index, const Key &inKey) {
    const QStringList current = list(kind, inKey);
    if (isOutside(index, current))
        return false;
    const Key key = copyOf(inKey);
    const std::string code = recordKey(key);
    const RecordItem item = itemAt((record().*kind.lists)(), code, index, current.at(index));
    (edit().*kind.remove)(item.value, code, item.occurrence);
    editCache<Key>(*this, kind, [&](auto &cache) { Language::removeValue(cache, index, key); });
    Q_EMIT(model->*kind.removed)(index, key);
    return true;
}

QStringList BehaviorInfoModel::tags(const RobotLanguage &lang) const {
    return m_data->list(Data::tagKind, lang);
}

const Language::LocalizedStringLists &BehaviorInfoModel::languagesToTags() const {
    return m_data->tags;
}

QStringList BehaviorInfoModel::triggerSentences(const RobotLanguage &lang) const {
    return m_data->list(Data::triggerSentenceKind, lang);
}

const Language::LocalizedStringLists &BehaviorInfoModel::languagesToTriggerSentences() const {
    return m_data->triggerSentences;
}

QStringList BehaviorInfoModel::loadingResponses(const RobotLanguage &lang) const {
    return m_data->list(Data::loadingResponseKind, lang);
}

const Language::LocalizedStringLists &BehaviorInfoModel::languagesToLoadingResponses() const {
    return m_data->loadingResponses;
}

QStringList BehaviorInfoModel::conditions(const QString &purpose) const {
    return m_data->list(Data::conditionKind, purpose);
}

void BehaviorInfoModel::trimExtraInfo(const RobotLanguages &descriptionLanguages,
                                      const RobotLanguages &supportedLanguages) {
    m_data->edit().trimExtraInfo(codesOf(descriptionLanguages), codesOf(supportedLanguages));
    keepOnly(descriptionLanguages, m_data->names);
    keepOnly(descriptionLanguages, m_data->descriptions);
    keepOnly(supportedLanguages, m_data->tags);
    keepOnly(supportedLanguages, m_data->triggerSentences);
    keepOnly(supportedLanguages, m_data->loadingResponses);
}

bool BehaviorInfoModel::addTag(const QString &tag, const RobotLanguage &lang) {
    return m_data->add(Data::tagKind, tag, lang);
}

bool BehaviorInfoModel::insertTag(const QString &tag, const RobotLanguage &lang, int idx) {
    return m_data->insert(Data::tagKind, tag, lang, idx);
}

bool BehaviorInfoModel::updateTag(int tagIdx, const QString &newTag, const RobotLanguage &lang) {
    return m_data->update(Data::tagKind, tagIdx, newTag, lang);
}

bool BehaviorInfoModel::removeTag(int tagIdx, const RobotLanguage &lang) {
    return m_data->remove(Data::tagKind, tagIdx, lang);
}

bool BehaviorInfoModel::addTriggerSentence(const QString &ts, const RobotLanguage &lang) {
    return m_data->add(Data::triggerSentenceKind, ts, lang);
}

bool BehaviorInfoModel::insertTriggerSentence(const QString &ts, const RobotLanguage &lang,
                                              int idx) {
    return m_data->insert(Data::triggerSentenceKind, ts, lang, idx);
}

bool BehaviorInfoModel::updateTriggerSentence(int tsIdx, const QString &newTs,
                                              const RobotLanguage &lang) {
    return m_data->update(Data::triggerSentenceKind, tsIdx, newTs, lang);
}

bool BehaviorInfoModel::removeTriggerSentence(int tsIdx, const RobotLanguage &lang) {
    return m_data->remove(Data::triggerSentenceKind, tsIdx, lang);
}

bool BehaviorInfoModel::addLoadingResponse(const QString &lr, const RobotLanguage &lang) {
    return m_data->add(Data::loadingResponseKind, lr, lang);
}

bool BehaviorInfoModel::insertLoadingResponse(const QString &lr, const RobotLanguage &lang,
                                              int idx) {
    return m_data->insert(Data::loadingResponseKind, lr, lang, idx);
}

bool BehaviorInfoModel::updateLoadingResponse(int lrIdx, const QString &newLr,
                                              const RobotLanguage &lang) {
    return m_data->update(Data::loadingResponseKind, lrIdx, newLr, lang);
}

bool BehaviorInfoModel::removeLoadingResponse(int lrIdx, const RobotLanguage &lang) {
    return m_data->remove(Data::loadingResponseKind, lrIdx, lang);
}

bool BehaviorInfoModel::addCondition(const QString &condition, const QString &purpose) {
    return m_data->add(Data::conditionKind, condition, purpose);
}

bool BehaviorInfoModel::insertCondition(const QString &condition, const QString &purpose, int idx) {
    return m_data->insert(Data::conditionKind, condition, purpose, idx);
}

bool BehaviorInfoModel::updateCondition(int conditionIdx, const QString &newCondition,
                                        const QString &purpose) {
    return m_data->update(Data::conditionKind, conditionIdx, newCondition, purpose);
}

bool BehaviorInfoModel::removeCondition(int conditionIdx, const QString &purpose) {
    return m_data->remove(Data::conditionKind, conditionIdx, purpose);
}

} // namespace Zel
