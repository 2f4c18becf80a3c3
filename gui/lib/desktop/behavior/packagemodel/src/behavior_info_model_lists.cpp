#include <packagemodel/behavior_info_model.h>

#include "behavior_info_data.h"
#include "copies.h"
#include "localized_texts.h"

#include <packagemodel/text_conversion.h>

#include <algorithm>
#include <type_traits>
#include <utility>

namespace Zel {
namespace {

std::string recordKey(const RobotLanguage &language) {
    return codeOf(language);
}

std::string recordKey(const QString &purpose) {
    return toUtf8(purpose);
}

constexpr int longestSearched = 16;

const std::vector<std::string> &recordList(const Tano::BehaviorInfo &record,
                                           Tano::BehaviorList kind, const std::string &key) {
    static const std::vector<std::string> empty;
    const auto found = record.lists(kind).find(key);
    return found == record.lists(kind).end() ? empty : found->second;
}

// Edits the cache; conditions have none.
template<typename Key, typename Data, typename Kind, typename Edit>
void editCache(Data &data, const Kind &kind, Edit edit) {
    if constexpr (std::is_same_v<Key, RobotLanguage>)
        edit((data.*kind.cache).values());
}

} // namespace

const BehaviorInfoModel::Data::ListKind<RobotLanguage> BehaviorInfoModel::Data::tagKind{
    Tano::BehaviorList::Tags,       &Tano::BehaviorInfo::addTag,
    &Tano::BehaviorInfo::insertTag, &Data::tags,
    &BehaviorInfoModel::tagAdded,   &BehaviorInfoModel::tagInserted,
    &BehaviorInfoModel::tagUpdated, &BehaviorInfoModel::tagRemoved};

const BehaviorInfoModel::Data::ListKind<RobotLanguage> BehaviorInfoModel::Data::triggerSentenceKind{
    Tano::BehaviorList::TriggerSentences,       &Tano::BehaviorInfo::addTriggerSentence,
    &Tano::BehaviorInfo::insertTriggerSentence, &Data::triggerSentences,
    &BehaviorInfoModel::triggerSentenceAdded,   &BehaviorInfoModel::triggerSentenceInserted,
    &BehaviorInfoModel::triggerSentenceUpdated, &BehaviorInfoModel::triggerSentenceRemoved};

const BehaviorInfoModel::Data::ListKind<RobotLanguage> BehaviorInfoModel::Data::loadingResponseKind{
    Tano::BehaviorList::LoadingResponses,       &Tano::BehaviorInfo::addLoadingResponse,
    &Tano::BehaviorInfo::insertLoadingResponse, &Data::loadingResponses,
    &BehaviorInfoModel::loadingResponseAdded,   &BehaviorInfoModel::loadingResponseInserted,
    &BehaviorInfoModel::loadingResponseUpdated, &BehaviorInfoModel::loadingResponseRemoved};

const BehaviorInfoModel::Data::ListKind<QString> BehaviorInfoModel::Data::conditionKind{
    Tano::BehaviorList::Conditions,       &Tano::BehaviorInfo::addCondition,
    &Tano::BehaviorInfo::insertCondition, nullptr,
    &BehaviorInfoModel::conditionAdded,   &BehaviorInfoModel::conditionInserted,
    &BehaviorInfoModel::conditionUpdated, &BehaviorInfoModel::conditionRemoved};

QStringList BehaviorInfoModel::Data::list(const ListKind<RobotLanguage> &kind,
                                          const RobotLanguage &language) const {
    return valueFor((this->*kind.cache).values(), language);
}

QStringList BehaviorInfoModel::Data::list(const ListKind<QString> &, const QString &purpose) const {
    return listFromRecord(record().conditions(toUtf8(purpose)));
}

int BehaviorInfoModel::Data::size(const ListKind<RobotLanguage> &kind,
                                  const RobotLanguage &language) const {
    const auto *entry = (this->*kind.cache).values().find(language);
    return entry ? static_cast<int>(entry->first.size()) : 0;
}

int BehaviorInfoModel::Data::size(const ListKind<QString> &kind, const QString &purpose) const {
    return static_cast<int>(recordList(record(), kind.list, recordKey(purpose)).size());
}

bool BehaviorInfoModel::Data::contains(const ListKind<RobotLanguage> &kind,
                                       const RobotLanguage &language, const QString &value) const {
    const auto *entry = (this->*kind.cache).values().find(language);
    return entry && entry->first.contains(value);
}

bool BehaviorInfoModel::Data::contains(const ListKind<QString> &kind, const QString &purpose,
                                       const QString &value) const {
    const auto &conditions = recordList(record(), kind.list, recordKey(purpose));
    return std::any_of(conditions.begin(), conditions.end(),
                       [&](const std::string &condition) { return fromUtf8(condition) == value; });
}

QString BehaviorInfoModel::Data::valueAt(const ListKind<RobotLanguage> &kind,
                                         const RobotLanguage &language, int index) const {
    return (this->*kind.cache).values().find(language)->first.at(index);
}

QString BehaviorInfoModel::Data::valueAt(const ListKind<QString> &kind, const QString &purpose,
                                         int index) const {
    return fromUtf8(recordList(record(), kind.list, recordKey(purpose))[std::size_t(index)]);
}

template<typename Key>
bool BehaviorInfoModel::Data::holds(const ListKind<Key> &kind, const Key &key,
                                    const QString &value) {
    if (size(kind, key) <= longestSearched)
        return contains(kind, key, value);
    const std::string code = recordKey(key);
    if (!m_addedTo || m_addedTo->list != kind.list || m_addedTo->key != code) {
        m_addedTo = std::make_unique<AddedTo>(AddedTo{kind.list, code, {}});
        return contains(kind, key, value);
    }
    if (m_addedTo->values.isEmpty()) {
        for (const QString &present : list(kind, key))
            m_addedTo->values.insert(present);
    }
    return m_addedTo->values.contains(value);
}

template<typename Key>
void BehaviorInfoModel::Data::noteAdded(const ListKind<Key> &kind, const Key &key) {
    if (m_addedTo && m_addedTo->list == kind.list && m_addedTo->key == recordKey(key) &&
        !m_addedTo->values.isEmpty())
        m_addedTo->values.insert(valueAt(kind, key, size(kind, key) - 1));
}

template<typename Key>
void BehaviorInfoModel::Data::noteChanged(const ListKind<Key> &kind, const Key &key) {
    if (m_addedTo && m_addedTo->list == kind.list && m_addedTo->key == recordKey(key))
        m_addedTo.reset();
}

template<typename Key>
bool BehaviorInfoModel::Data::add(const ListKind<Key> &kind, const QString &newValue,
                                  const Key &inKey) {
    if (holds(kind, inKey, newValue))
        return false;
    const QString value = copyOf(newValue);
    const Key key = copyOf(inKey);
    editAnnounced(
        [&](Tano::BehaviorInfo &record) { (record.*kind.add)(toUtf8(value), recordKey(key)); });
    editCache<Key>(*this, kind, [&](auto &cache) { madeValue(cache, key).append(value); });
    noteAdded(kind, key);
    announce(kind.added, value, key);
    return true;
}

template<typename Key>
bool BehaviorInfoModel::Data::insert(const ListKind<Key> &kind, const QString &newValue,
                                     const Key &inKey, int index) {
    if (contains(kind, inKey, newValue))
        return false;
    const QString value = copyOf(newValue);
    const Key key = copyOf(inKey);
    const int place = std::clamp(index, 0, size(kind, key));
    (edit().*kind.insert)(toUtf8(value), recordKey(key), index);
    editCache<Key>(*this, kind, [&](auto &cache) { madeValue(cache, key).insert(place, value); });
    noteChanged(kind, key);
    // A condition that UTF-8 cannot represent cannot be found again.
    Q_EMIT(model->*kind.inserted)(value, key, valueAt(kind, key, place) == value ? place : -1);
    return true;
}

template<typename Key>
bool BehaviorInfoModel::Data::update(const ListKind<Key> &kind, int index, const QString &newValue,
                                     const Key &inKey) {
    if (index < 0 || index >= size(kind, inKey))
        return false;
    const QString value = copyOf(newValue);
    const Key key = copyOf(inKey);
    editAnnounced([&](Tano::BehaviorInfo &record) {
        record.updateAt(kind.list, recordKey(key), index, toUtf8(value));
    });
    editCache<Key>(*this, kind, [&](auto &cache) { madeValue(cache, key).replace(index, value); });
    noteChanged(kind, key);
    announce(kind.updated, index, value, key);
    return true;
}

template<typename Key>
bool BehaviorInfoModel::Data::remove(const ListKind<Key> &kind, int index, const Key &inKey) {
    if (index < 0 || index >= size(kind, inKey))
        return false;
    const Key key = copyOf(inKey);
    editAnnounced(
        [&](Tano::BehaviorInfo &record) { record.removeAt(kind.list, recordKey(key), index); });
    editCache<Key>(*this, kind, [&](auto &cache) {
        QStringList &values = madeValue(cache, key);
        values.removeAt(index);
        if (values.isEmpty())
            cache.remove(key);
    });
    noteChanged(kind, key);
    announce(kind.removed, index, key);
    return true;
}

QStringList BehaviorInfoModel::tags(const RobotLanguage &lang) const {
    return m_data->list(Data::tagKind, lang);
}

const Language::LocalizedStringLists &BehaviorInfoModel::languagesToTags() const {
    return std::as_const(m_data->tags).values();
}

QStringList BehaviorInfoModel::triggerSentences(const RobotLanguage &lang) const {
    return m_data->list(Data::triggerSentenceKind, lang);
}

const Language::LocalizedStringLists &BehaviorInfoModel::languagesToTriggerSentences() const {
    return std::as_const(m_data->triggerSentences).values();
}

QStringList BehaviorInfoModel::loadingResponses(const RobotLanguage &lang) const {
    return m_data->list(Data::loadingResponseKind, lang);
}

const Language::LocalizedStringLists &BehaviorInfoModel::languagesToLoadingResponses() const {
    return std::as_const(m_data->loadingResponses).values();
}

QStringList BehaviorInfoModel::conditions(const QString &purpose) const {
    return m_data->list(Data::conditionKind, purpose);
}

void BehaviorInfoModel::trimExtraInfo(const RobotLanguages &descriptionLanguages,
                                      const RobotLanguages &supportedLanguages) {
    m_data->trim(descriptionLanguages, supportedLanguages, codesOf(descriptionLanguages),
                 codesOf(supportedLanguages));
}

void BehaviorInfoModel::Data::trim(const ByLanguage<RobotLanguage> &descriptionLanguages,
                                   const ByLanguage<RobotLanguage> &supportedLanguages,
                                   const std::set<std::string> &descriptionCodes,
                                   const std::set<std::string> &supportedCodes) {
    edit().trimExtraInfo(descriptionCodes, supportedCodes);
    keepOnly(descriptionLanguages, names);
    keepOnly(descriptionLanguages, descriptions);
    keepOnly(supportedLanguages, tags);
    keepOnly(supportedLanguages, triggerSentences);
    keepOnly(supportedLanguages, loadingResponses);
    m_addedTo.reset();
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
