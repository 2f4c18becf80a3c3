#include <tano/behavior_info.h>

#include "manifest_writer.h"
#include "record_fields.h"

#include <algorithm>

namespace Tano {
namespace {

const std::string interactive = "interactive";
const std::string solitary = "solitary";

// Operations shared by the four kinds of lists.

using Lists = TextListMap BehaviorData::*;

void addTo(BehaviorInfo &record, Lists lists, const std::string &value, const std::string &key) {
    (RecordAccess::edit(record).*lists)[key].push_back(value);
}

void insertInto(BehaviorInfo &record, Lists lists, const std::string &value, const std::string &key,
                int index) {
    auto &list = (RecordAccess::edit(record).*lists)[key];
    list.insert(list.begin() + std::clamp(index, 0, int(list.size())), value);
}

// The index of the given occurrence of a value, -1 if there is none.
int indexOf(const BehaviorInfo &record, Lists lists, const std::string &value,
            const std::string &key, int occurrence) {
    const auto &list = listOf(RecordAccess::data(record).*lists, key);
    for (int i = 0; i < int(list.size()); ++i) {
        if (list[std::size_t(i)] == value && occurrence-- == 0)
            return i;
    }
    return -1;
}

Lists listsOf(BehaviorList kind) {
    switch (kind) {
    case BehaviorList::Tags:
        return &BehaviorData::tags;
    case BehaviorList::TriggerSentences:
        return &BehaviorData::triggerSentences;
    case BehaviorList::LoadingResponses:
        return &BehaviorData::loadingResponses;
    case BehaviorList::Conditions:
        break;
    }
    return &BehaviorData::conditions;
}

bool holdsIndex(const BehaviorInfo &record, Lists lists, const std::string &key, int index) {
    return index >= 0 && index < int(listOf(RecordAccess::data(record).*lists, key).size());
}

bool updateAtIndex(BehaviorInfo &record, Lists lists, const std::string &key, int index,
                   const std::string &newValue) {
    if (!holdsIndex(record, lists, key, index))
        return false;
    (RecordAccess::edit(record).*lists)[key][std::size_t(index)] = newValue;
    return true;
}

bool removeAtIndex(BehaviorInfo &record, Lists lists, const std::string &key, int index) {
    if (!holdsIndex(record, lists, key, index))
        return false;
    auto &all = RecordAccess::edit(record).*lists;
    const auto it = all.find(key);
    it->second.erase(it->second.begin() + index);
    if (it->second.empty())
        all.erase(it);
    return true;
}

bool updateIn(BehaviorInfo &record, Lists lists, const std::string &oldValue,
              const std::string &newValue, const std::string &key, int occurrence) {
    return updateAtIndex(record, lists, key, indexOf(record, lists, oldValue, key, occurrence),
                         newValue);
}

bool removeFrom(BehaviorInfo &record, Lists lists, const std::string &value, const std::string &key,
                int occurrence) {
    return removeAtIndex(record, lists, key, indexOf(record, lists, value, key, occurrence));
}

} // namespace

const std::string &BehaviorInfo::natureInteractive() {
    return interactive;
}

const std::string &BehaviorInfo::natureSolitary() {
    return solitary;
}

const std::string &BehaviorInfo::path() const {
    return RecordAccess::data(*this).path;
}

void BehaviorInfo::setPath(const std::string &path) {
    RecordAccess::edit(*this).path = path;
}

const std::string &BehaviorInfo::nature() const {
    return RecordAccess::data(*this).nature;
}

void BehaviorInfo::setNature(const std::string &nature) {
    RecordAccess::edit(*this).nature = nature;
}

bool BehaviorInfo::isUserRequestable() const {
    return RecordAccess::data(*this).userRequestable;
}

void BehaviorInfo::setUserRequestable(bool userRequestable) {
    RecordAccess::edit(*this).userRequestable = userRequestable;
}

const TextMap &BehaviorInfo::names() const {
    return RecordAccess::data(*this).names;
}

const std::string &BehaviorInfo::name(const std::string &code) const {
    return textOf(names(), code);
}

void BehaviorInfo::setName(const std::string &name, const std::string &code) {
    RecordAccess::edit(*this).names[code] = name;
}

bool BehaviorInfo::removeName(const std::string &code) {
    return names().count(code) != 0 && RecordAccess::edit(*this).names.erase(code) != 0;
}

const TextMap &BehaviorInfo::descriptions() const {
    return RecordAccess::data(*this).descriptions;
}

const std::string &BehaviorInfo::description(const std::string &code) const {
    return textOf(descriptions(), code);
}

void BehaviorInfo::setDescription(const std::string &description, const std::string &code) {
    RecordAccess::edit(*this).descriptions[code] = description;
}

bool BehaviorInfo::removeDescription(const std::string &code) {
    return descriptions().count(code) != 0 &&
           RecordAccess::edit(*this).descriptions.erase(code) != 0;
}

const std::vector<std::string> &BehaviorInfo::permissions() const {
    return RecordAccess::data(*this).permissions;
}

bool BehaviorInfo::hasPermission(const std::string &permission) const {
    const auto &all = permissions();
    return std::find(all.begin(), all.end(), permission) != all.end();
}

bool BehaviorInfo::addPermission(const std::string &permission) {
    return insertPermission(permission, int(permissions().size()));
}

bool BehaviorInfo::insertPermission(const std::string &permission, int index) {
    if (hasPermission(permission))
        return false;
    auto &all = RecordAccess::edit(*this).permissions;
    all.insert(all.begin() + std::clamp(index, 0, int(all.size())), permission);
    return true;
}

bool BehaviorInfo::removePermission(const std::string &permission) {
    if (!hasPermission(permission))
        return false;
    auto &all = RecordAccess::edit(*this).permissions;
    all.erase(std::remove(all.begin(), all.end(), permission), all.end());
    return true;
}

const TextListMap &BehaviorInfo::languagesToTags() const {
    return RecordAccess::data(*this).tags;
}

void BehaviorInfo::addTag(const std::string &tag, const std::string &code) {
    addTo(*this, &BehaviorData::tags, tag, code);
}

void BehaviorInfo::insertTag(const std::string &tag, const std::string &code, int index) {
    insertInto(*this, &BehaviorData::tags, tag, code, index);
}

bool BehaviorInfo::updateTag(const std::string &oldTag, const std::string &newTag,
                             const std::string &code, int occurrence) {
    return updateIn(*this, &BehaviorData::tags, oldTag, newTag, code, occurrence);
}

bool BehaviorInfo::removeTag(const std::string &tag, const std::string &code, int occurrence) {
    return removeFrom(*this, &BehaviorData::tags, tag, code, occurrence);
}

const TextListMap &BehaviorInfo::languagesToTriggerSentences() const {
    return RecordAccess::data(*this).triggerSentences;
}

void BehaviorInfo::addTriggerSentence(const std::string &sentence, const std::string &code) {
    addTo(*this, &BehaviorData::triggerSentences, sentence, code);
}

void BehaviorInfo::insertTriggerSentence(const std::string &sentence, const std::string &code,
                                         int index) {
    insertInto(*this, &BehaviorData::triggerSentences, sentence, code, index);
}

bool BehaviorInfo::updateTriggerSentence(const std::string &oldSentence,
                                         const std::string &newSentence, const std::string &code,
                                         int occurrence) {
    return updateIn(*this, &BehaviorData::triggerSentences, oldSentence, newSentence, code,
                    occurrence);
}

bool BehaviorInfo::removeTriggerSentence(const std::string &sentence, const std::string &code,
                                         int occurrence) {
    return removeFrom(*this, &BehaviorData::triggerSentences, sentence, code, occurrence);
}

const TextListMap &BehaviorInfo::languagesToLoadingResponses() const {
    return RecordAccess::data(*this).loadingResponses;
}

void BehaviorInfo::addLoadingResponse(const std::string &response, const std::string &code) {
    addTo(*this, &BehaviorData::loadingResponses, response, code);
}

void BehaviorInfo::insertLoadingResponse(const std::string &response, const std::string &code,
                                         int index) {
    insertInto(*this, &BehaviorData::loadingResponses, response, code, index);
}

bool BehaviorInfo::updateLoadingResponse(const std::string &oldResponse,
                                         const std::string &newResponse, const std::string &code,
                                         int occurrence) {
    return updateIn(*this, &BehaviorData::loadingResponses, oldResponse, newResponse, code,
                    occurrence);
}

bool BehaviorInfo::removeLoadingResponse(const std::string &response, const std::string &code,
                                         int occurrence) {
    return removeFrom(*this, &BehaviorData::loadingResponses, response, code, occurrence);
}

const TextListMap &BehaviorInfo::purposesToConditions() const {
    return RecordAccess::data(*this).conditions;
}

const std::vector<std::string> &BehaviorInfo::conditions(const std::string &purpose) const {
    return listOf(purposesToConditions(), purpose);
}

void BehaviorInfo::addCondition(const std::string &condition, const std::string &purpose) {
    addTo(*this, &BehaviorData::conditions, condition, purpose);
}

void BehaviorInfo::insertCondition(const std::string &condition, const std::string &purpose,
                                   int index) {
    insertInto(*this, &BehaviorData::conditions, condition, purpose, index);
}

bool BehaviorInfo::updateCondition(const std::string &oldCondition, const std::string &newCondition,
                                   const std::string &purpose, int occurrence) {
    return updateIn(*this, &BehaviorData::conditions, oldCondition, newCondition, purpose,
                    occurrence);
}

bool BehaviorInfo::removeCondition(const std::string &condition, const std::string &purpose,
                                   int occurrence) {
    return removeFrom(*this, &BehaviorData::conditions, condition, purpose, occurrence);
}

const TextListMap &BehaviorInfo::lists(BehaviorList kind) const {
    return RecordAccess::data(*this).*listsOf(kind);
}

bool BehaviorInfo::updateAt(BehaviorList kind, const std::string &key, int index,
                            const std::string &newValue) {
    return updateAtIndex(*this, listsOf(kind), key, index, newValue);
}

bool BehaviorInfo::removeAt(BehaviorList kind, const std::string &key, int index) {
    return removeAtIndex(*this, listsOf(kind), key, index);
}

void BehaviorInfo::trimExtraInfo(const std::vector<std::string> &descriptionCodes,
                                 const std::vector<std::string> &supportedCodes) {
    trimTexts(RecordAccess::edit(*this), KeySet(descriptionCodes), KeySet(supportedCodes));
}

void BehaviorInfo::trimExtraInfo(const std::set<std::string> &descriptionCodes,
                                 const std::set<std::string> &supportedCodes) {
    trimTexts(RecordAccess::edit(*this), KeySet(descriptionCodes), KeySet(supportedCodes));
}

bool operator==(const BehaviorInfo &a, const BehaviorInfo &b) {
    return RecordAccess::sharesData(a, b) ||
           sameContent(RecordAccess::data(a), RecordAccess::data(b));
}

} // namespace Tano
