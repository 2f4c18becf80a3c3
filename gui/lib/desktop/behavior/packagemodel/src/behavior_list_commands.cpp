#include <packagemodel/behavior_commands.h>

#include "command_ids.h"
#include "entry_call.h"

#include <packagemodel/behavior_info_model.h>

#include <QCoreApplication>
#include <QPointer>

namespace Zel {
namespace {

// The model's operations on one kind of list.
template<typename Key>
struct CommandList {
    QStringList (BehaviorInfoModel::*list)(const Key &key) const;
    bool (BehaviorInfoModel::*append)(const QString &value, const Key &key);
    bool (BehaviorInfoModel::*insert)(const QString &value, const Key &key, int index);
    bool (BehaviorInfoModel::*update)(int index, const QString &value, const Key &key);
    bool (BehaviorInfoModel::*remove)(int index, const Key &key);
};

constexpr CommandList<RobotLanguage> tags{
    &BehaviorInfoModel::tags, &BehaviorInfoModel::addTag, &BehaviorInfoModel::insertTag,
    &BehaviorInfoModel::updateTag, &BehaviorInfoModel::removeTag};

constexpr CommandList<RobotLanguage> triggerSentences{
    &BehaviorInfoModel::triggerSentences, &BehaviorInfoModel::addTriggerSentence,
    &BehaviorInfoModel::insertTriggerSentence, &BehaviorInfoModel::updateTriggerSentence,
    &BehaviorInfoModel::removeTriggerSentence};

constexpr CommandList<RobotLanguage> loadingResponses{
    &BehaviorInfoModel::loadingResponses, &BehaviorInfoModel::addLoadingResponse,
    &BehaviorInfoModel::insertLoadingResponse, &BehaviorInfoModel::updateLoadingResponse,
    &BehaviorInfoModel::removeLoadingResponse};

constexpr CommandList<QString> conditions{
    &BehaviorInfoModel::conditions, &BehaviorInfoModel::addCondition,
    &BehaviorInfoModel::insertCondition, &BehaviorInfoModel::updateCondition,
    &BehaviorInfoModel::removeCondition};

template<typename Key>
QStringList listOf(const BehaviorInfoModel *behavior, const CommandList<Key> &kind,
                   const Key &key) {
    return callOn(behavior, kind.list, key);
}

template<typename Key>
QString itemAt(const BehaviorInfoModel *behavior, const CommandList<Key> &kind, const Key &key,
               int index) {
    return listOf(behavior, kind, key).value(index);
}

template<typename Key>
void setItem(BehaviorInfoModel *behavior, const CommandList<Key> &kind, const Key &key, int index,
             const QString &value) {
    callOn(behavior, kind.update, index, value, key); // ignores an index outside the list
}

// Receivers of the addition may remove the behavior.
template<typename Key>
int addItem(const QPointer<BehaviorInfoModel> &behavior, const CommandList<Key> &kind,
            const Key &key, const QString &value, int index) {
    const auto items = [&] { return listOf(behavior.data(), kind, key); };
    const auto size = items().size();
    if ((index < 0 || index >= size) && callOn(behavior.data(), kind.append, value, key))
        return static_cast<int>(items().size()) - 1;
    if (!callOn(behavior.data(), kind.insert, value, key, index))
        return -1;
    return static_cast<int>(items().indexOf(value));
}

template<typename Key>
QString removeItem(BehaviorInfoModel *behavior, const CommandList<Key> &kind, const Key &key,
                   int index, bool *ok) {
    const QStringList list = listOf(behavior, kind, key);
    const bool isThere = index >= 0 && index < list.size();
    const bool isRemoved = isThere && callOn(behavior, kind.remove, index, key);
    if (ok)
        *ok = isRemoved;
    return isThere ? list.at(index) : QString();
}

} // namespace

BehaviorSetIndexedStringCommand::BehaviorSetIndexedStringCommand(PackageInfoModel *model,
                                                                 const QString &behaviorPath,
                                                                 const QString &newValue, int index,
                                                                 bool isFinal)
    : BehaviorSetStringCommand(model, behaviorPath, newValue, isFinal)
    , m_index(index) {
}

BehaviorSetIndexedStringCommand::~BehaviorSetIndexedStringCommand() = default;

bool BehaviorSetIndexedStringCommand::mergeWith(const QUndoCommand *incoming) {
    return mergeIf<BehaviorSetIndexedStringCommand>(incoming, [&](const auto &newer) {
        return newer.m_index == m_index && BehaviorSetStringCommand::mergeWith(incoming);
    });
}

template<typename T>
BehaviorSetTaggedIndexedStringCommand<T>::BehaviorSetTaggedIndexedStringCommand(
    PackageInfoModel *model, const QString &behaviorPath, const QString &newValue, const T &tag,
    int index, bool isFinal)
    : BehaviorSetIndexedStringCommand(model, behaviorPath, newValue, index, isFinal)
    , m_tag(tag) {
}

template<typename T>
BehaviorSetTaggedIndexedStringCommand<T>::~BehaviorSetTaggedIndexedStringCommand() = default;

template<typename T>
bool BehaviorSetTaggedIndexedStringCommand<T>::mergeWith(const QUndoCommand *incoming) {
    return mergeIf<BehaviorSetTaggedIndexedStringCommand>(incoming, [&](const auto &newer) {
        return newer.m_tag == m_tag && BehaviorSetIndexedStringCommand::mergeWith(incoming);
    });
}

template class BehaviorSetTaggedIndexedStringCommand<RobotLanguage>;
template class BehaviorSetTaggedIndexedStringCommand<QString>;

BehaviorSetLocalizedIndexedStringCommand::BehaviorSetLocalizedIndexedStringCommand(
    PackageInfoModel *model, const QString &behaviorPath, const QString &newValue,
    const RobotLanguage &language, int index, bool isFinal)
    : BehaviorSetTaggedIndexedStringCommand(model, behaviorPath, newValue, language, index,
                                            isFinal) {
}

BehaviorSetLocalizedIndexedStringCommand::~BehaviorSetLocalizedIndexedStringCommand() = default;

BehaviorSetPurposedIndexedStringCommand::BehaviorSetPurposedIndexedStringCommand(
    PackageInfoModel *model, const QString &behaviorPath, const QString &newValue,
    const QString &purpose, int index, bool isFinal)
    : BehaviorSetTaggedIndexedStringCommand(model, behaviorPath, newValue, purpose, index,
                                            isFinal) {
}

BehaviorSetPurposedIndexedStringCommand::~BehaviorSetPurposedIndexedStringCommand() = default;

BehaviorSetTagCommand::BehaviorSetTagCommand(PackageInfoModel *model, const QString &behaviorPath,
                                             const QString &newValue, const RobotLanguage &language,
                                             int index, bool isFinal)
    : BehaviorSetLocalizedIndexedStringCommand(model, behaviorPath, newValue, language, index,
                                               isFinal) {
    setOldValue(itemAt(behaviorInfoModel(), tags, language, index));
    setText(QCoreApplication::translate("Zel::BehaviorSetTagCommand", "Set behavior tag #%1 (%2)")
                .arg(QString::number(index), language.isoCode()));
}

int BehaviorSetTagCommand::id() const {
    return CommandId::behaviorTag;
}

void BehaviorSetTagCommand::setValue(const QString &value) {
    setItem(behaviorInfoModel(), tags, tag(), index(), value);
}

BehaviorSetTriggerSentenceCommand::BehaviorSetTriggerSentenceCommand(PackageInfoModel *model,
                                                                     const QString &behaviorPath,
                                                                     const QString &newValue,
                                                                     const RobotLanguage &language,
                                                                     int index, bool isFinal)
    : BehaviorSetLocalizedIndexedStringCommand(model, behaviorPath, newValue, language, index,
                                               isFinal) {
    setOldValue(itemAt(behaviorInfoModel(), triggerSentences, language, index));
    setText(QCoreApplication::translate("Zel::BehaviorSetTriggerSentenceCommand",
                                        "Set behavior trigger sentence #%1 (%2)")
                .arg(QString::number(index), language.isoCode()));
}

int BehaviorSetTriggerSentenceCommand::id() const {
    return CommandId::behaviorTriggerSentence;
}

void BehaviorSetTriggerSentenceCommand::setValue(const QString &value) {
    setItem(behaviorInfoModel(), triggerSentences, tag(), index(), value);
}

BehaviorSetLoadingResponseCommand::BehaviorSetLoadingResponseCommand(PackageInfoModel *model,
                                                                     const QString &behaviorPath,
                                                                     const QString &newValue,
                                                                     const RobotLanguage &language,
                                                                     int index, bool isFinal)
    : BehaviorSetLocalizedIndexedStringCommand(model, behaviorPath, newValue, language, index,
                                               isFinal) {
    setOldValue(itemAt(behaviorInfoModel(), loadingResponses, language, index));
    setText(QCoreApplication::translate("Zel::BehaviorSetLoadingResponseCommand",
                                        "Set behavior loading response #%1 in %2")
                .arg(QString::number(index), language.isoCode()));
}

int BehaviorSetLoadingResponseCommand::id() const {
    return CommandId::behaviorLoadingResponse;
}

void BehaviorSetLoadingResponseCommand::setValue(const QString &value) {
    setItem(behaviorInfoModel(), loadingResponses, tag(), index(), value);
}

BehaviorSetConditionCommand::BehaviorSetConditionCommand(PackageInfoModel *model,
                                                         const QString &behaviorPath,
                                                         const QString &newValue,
                                                         const QString &purpose, int index,
                                                         bool isFinal)
    : BehaviorSetPurposedIndexedStringCommand(model, behaviorPath, newValue, purpose, index,
                                              isFinal) {
    setOldValue(itemAt(behaviorInfoModel(), conditions, purpose, index));
    setText(QCoreApplication::translate("Zel::BehaviorSetConditionCommand",
                                        "Set behavior condition for %1")
                .arg(purpose));
}

int BehaviorSetConditionCommand::id() const {
    return CommandId::behaviorCondition;
}

void BehaviorSetConditionCommand::setValue(const QString &value) {
    setItem(behaviorInfoModel(), conditions, tag(), index(), value);
}

template<typename T>
BehaviorAddRemoveTaggedStringCommand<T>::BehaviorAddRemoveTaggedStringCommand(
    PackageInfoModel *model, const QString &behaviorPath, const QString &value, const T &tag,
    int index, bool isAdd)
    : BehaviorCommand(model, behaviorPath)
    , m_value(value)
    , m_tag(tag)
    , m_index(index)
    , m_isAdd(isAdd) {
}

template<typename T>
BehaviorAddRemoveTaggedStringCommand<T>::~BehaviorAddRemoveTaggedStringCommand() = default;

template<typename T>
void BehaviorAddRemoveTaggedStringCommand<T>::undo() {
    step(!m_isAdd);
}

template<typename T>
void BehaviorAddRemoveTaggedStringCommand<T>::redo() {
    step(m_isAdd);
}

template<typename T>
void BehaviorAddRemoveTaggedStringCommand<T>::step(bool isAdd) {
    if (!m_succeeded)
        return;
    if (isAdd) {
        m_index = add(m_value, m_index);
        m_succeeded = m_index != -1;
    } else {
        m_value = remove(m_index, &m_succeeded);
    }
}

template class BehaviorAddRemoveTaggedStringCommand<RobotLanguage>;
template class BehaviorAddRemoveTaggedStringCommand<QString>;

BehaviorAddRemoveLocalizedStringCommand::BehaviorAddRemoveLocalizedStringCommand(
    PackageInfoModel *model, const QString &behaviorPath, const QString &value,
    const RobotLanguage &language, int index, bool isAdd)
    : BehaviorAddRemoveTaggedStringCommand(model, behaviorPath, value, language, index, isAdd) {
}

BehaviorAddRemoveLocalizedStringCommand::~BehaviorAddRemoveLocalizedStringCommand() = default;

BehaviorAddRemovePurposedStringCommand::BehaviorAddRemovePurposedStringCommand(
    PackageInfoModel *model, const QString &behaviorPath, const QString &value,
    const QString &purpose, int index, bool isAdd)
    : BehaviorAddRemoveTaggedStringCommand(model, behaviorPath, value, purpose, index, isAdd) {
}

BehaviorAddRemovePurposedStringCommand::~BehaviorAddRemovePurposedStringCommand() = default;

BehaviorAddRemoveTagCommand::BehaviorAddRemoveTagCommand(PackageInfoModel *model,
                                                         const QString &behaviorPath,
                                                         const QString &value,
                                                         const RobotLanguage &language, int index,
                                                         bool isAdd)
    : BehaviorAddRemoveLocalizedStringCommand(model, behaviorPath, value, language, index, isAdd) {
    setText(isAdd ? QCoreApplication::translate("Zel::BehaviorAddRemoveTagCommand",
                                                "Add a tag to the behavior")
                  : QCoreApplication::translate("Zel::BehaviorAddRemoveTagCommand",
                                                "Remove a tag from the behavior"));
}

BehaviorAddRemoveTagCommand *BehaviorAddRemoveTagCommand::addCommand(PackageInfoModel *model,
                                                                     const QString &behaviorPath,
                                                                     const QString &value,
                                                                     const RobotLanguage &language,
                                                                     int index) {
    return new BehaviorAddRemoveTagCommand(model, behaviorPath, value, language, index, true);
}

BehaviorAddRemoveTagCommand *
BehaviorAddRemoveTagCommand::removeCommand(PackageInfoModel *model, const QString &behaviorPath,
                                           const RobotLanguage &language, int index) {
    return new BehaviorAddRemoveTagCommand(model, behaviorPath, QString(), language, index, false);
}

int BehaviorAddRemoveTagCommand::add(const QString &value, int index) {
    return addItem<RobotLanguage>(behaviorInfoModel(), tags, tag(), value, index);
}

QString BehaviorAddRemoveTagCommand::remove(int index, bool *ok) {
    return removeItem(behaviorInfoModel(), tags, tag(), index, ok);
}

BehaviorAddRemoveTriggerSentenceCommand::BehaviorAddRemoveTriggerSentenceCommand(
    PackageInfoModel *model, const QString &behaviorPath, const QString &value,
    const RobotLanguage &language, int index, bool isAdd)
    : BehaviorAddRemoveLocalizedStringCommand(model, behaviorPath, value, language, index, isAdd) {
    setText(isAdd ? QCoreApplication::translate("Zel::BehaviorAddRemoveTriggerSentenceCommand",
                                                "Add a trigger sentence to the behavior")
                  : QCoreApplication::translate("Zel::BehaviorAddRemoveTriggerSentenceCommand",
                                                "Remove a trigger sentence from the behavior"));
}

BehaviorAddRemoveTriggerSentenceCommand *BehaviorAddRemoveTriggerSentenceCommand::addCommand(
    PackageInfoModel *model, const QString &behaviorPath, const QString &value,
    const RobotLanguage &language, int index) {
    return new BehaviorAddRemoveTriggerSentenceCommand(model, behaviorPath, value, language, index,
                                                       true);
}

BehaviorAddRemoveTriggerSentenceCommand *
BehaviorAddRemoveTriggerSentenceCommand::removeCommand(PackageInfoModel *model,
                                                       const QString &behaviorPath,
                                                       const RobotLanguage &language, int index) {
    return new BehaviorAddRemoveTriggerSentenceCommand(model, behaviorPath, QString(), language,
                                                       index, false);
}

int BehaviorAddRemoveTriggerSentenceCommand::add(const QString &value, int index) {
    return addItem<RobotLanguage>(behaviorInfoModel(), triggerSentences, tag(), value, index);
}

QString BehaviorAddRemoveTriggerSentenceCommand::remove(int index, bool *ok) {
    return removeItem(behaviorInfoModel(), triggerSentences, tag(), index, ok);
}

BehaviorAddRemoveLoadingResponseCommand::BehaviorAddRemoveLoadingResponseCommand(
    PackageInfoModel *model, const QString &behaviorPath, const QString &value,
    const RobotLanguage &language, int index, bool isAdd)
    : BehaviorAddRemoveLocalizedStringCommand(model, behaviorPath, value, language, index, isAdd) {
    setText(isAdd ? QCoreApplication::translate("Zel::BehaviorAddRemoveLoadingResponseCommand",
                                                "Add a loading response to the behavior")
                  : QCoreApplication::translate("Zel::BehaviorAddRemoveLoadingResponseCommand",
                                                "Remove a loading response from the behavior"));
}

BehaviorAddRemoveLoadingResponseCommand *BehaviorAddRemoveLoadingResponseCommand::addCommand(
    PackageInfoModel *model, const QString &behaviorPath, const QString &value,
    const RobotLanguage &language, int index) {
    return new BehaviorAddRemoveLoadingResponseCommand(model, behaviorPath, value, language, index,
                                                       true);
}

BehaviorAddRemoveLoadingResponseCommand *
BehaviorAddRemoveLoadingResponseCommand::removeCommand(PackageInfoModel *model,
                                                       const QString &behaviorPath,
                                                       const RobotLanguage &language, int index) {
    return new BehaviorAddRemoveLoadingResponseCommand(model, behaviorPath, QString(), language,
                                                       index, false);
}

int BehaviorAddRemoveLoadingResponseCommand::add(const QString &value, int index) {
    return addItem<RobotLanguage>(behaviorInfoModel(), loadingResponses, tag(), value, index);
}

QString BehaviorAddRemoveLoadingResponseCommand::remove(int index, bool *ok) {
    return removeItem(behaviorInfoModel(), loadingResponses, tag(), index, ok);
}

BehaviorAddRemoveConditionCommand::BehaviorAddRemoveConditionCommand(PackageInfoModel *model,
                                                                     const QString &behaviorPath,
                                                                     const QString &value,
                                                                     const QString &purpose,
                                                                     int index, bool isAdd)
    : BehaviorAddRemovePurposedStringCommand(model, behaviorPath, value, purpose, index, isAdd) {
    setText(isAdd ? QCoreApplication::translate("Zel::BehaviorAddRemoveConditionCommand",
                                                "Add a condition to the behavior")
                  : QCoreApplication::translate("Zel::BehaviorAddRemoveConditionCommand",
                                                "Remove a condition from the behavior"));
}

BehaviorAddRemoveConditionCommand *
BehaviorAddRemoveConditionCommand::addCommand(PackageInfoModel *model, const QString &behaviorPath,
                                              const QString &value, const QString &purpose,
                                              int index) {
    return new BehaviorAddRemoveConditionCommand(model, behaviorPath, value, purpose, index, true);
}

BehaviorAddRemoveConditionCommand *BehaviorAddRemoveConditionCommand::removeCommand(
    PackageInfoModel *model, const QString &behaviorPath, const QString &purpose, int index) {
    return new BehaviorAddRemoveConditionCommand(model, behaviorPath, QString(), purpose, index,
                                                 false);
}

int BehaviorAddRemoveConditionCommand::add(const QString &value, int index) {
    return addItem<QString>(behaviorInfoModel(), conditions, tag(), value, index);
}

QString BehaviorAddRemoveConditionCommand::remove(int index, bool *ok) {
    return removeItem(behaviorInfoModel(), conditions, tag(), index, ok);
}

} // namespace Zel
