#include <packagemodel/behavior_commands.h>

#include "command_ids.h"
#include "entry_call.h"

#include <packagemodel/behavior_info_model.h>

#include <QCoreApplication>
#include <QLocale>
#include <QPointer>

namespace Zel {
namespace {

QString switchText(const BehaviorInfoModel *behavior, bool wasUserRequestable) {
    const RobotLanguage language = robotLanguage(QLocale().name());
    QString name = callOn(behavior, &BehaviorInfoModel::name, language);
    if (name.isEmpty())
        name = QCoreApplication::translate("Zel::BehaviorUserRequestableCommand", "a behavior");
    const QString text = wasUserRequestable
                             ? QCoreApplication::translate("Zel::BehaviorUserRequestableCommand",
                                                           "Set %1 as not user-requestable")
                             : QCoreApplication::translate("Zel::BehaviorUserRequestableCommand",
                                                           "Set %1 as user-requestable");
    return text.arg(name);
}

} // namespace

BehaviorSwitchUserRequestableCommand::BehaviorSwitchUserRequestableCommand(
    PackageInfoModel *model, const QString &behaviorPath)
    : BehaviorCommand(model, behaviorPath)
    , m_wasUserRequestable(callOn(behaviorInfoModel(), &BehaviorInfoModel::isUserRequestable)) {
    setText(switchText(behaviorInfoModel(), m_wasUserRequestable));
}

void BehaviorSwitchUserRequestableCommand::undo() {
    callOn(behaviorInfoModel(), &BehaviorInfoModel::setUserRequestable, m_wasUserRequestable);
}

void BehaviorSwitchUserRequestableCommand::redo() {
    callOn(behaviorInfoModel(), &BehaviorInfoModel::setUserRequestable, !m_wasUserRequestable);
}

BehaviorAddRemovePermissionCommand::BehaviorAddRemovePermissionCommand(PackageInfoModel *model,
                                                                       const QString &behaviorPath,
                                                                       const QString &permission,
                                                                       bool isAdd)
    : BehaviorCommand(model, behaviorPath)
    , m_permission(permission)
    , m_isAdd(isAdd) {
    const QString text =
        isAdd ? QCoreApplication::translate("Zel::BehaviorAddRemovePermissionCommand",
                                            "Add a permission (%1)")
              : QCoreApplication::translate("Zel::BehaviorAddRemovePermissionCommand",
                                            "Remove a permission (%1)");
    setText(text.arg(permission));
}

void BehaviorAddRemovePermissionCommand::undo() {
    m_lastResult = addOrRemove(!m_isAdd);
}

void BehaviorAddRemovePermissionCommand::redo() {
    m_lastResult = addOrRemove(m_isAdd);
}

bool BehaviorAddRemovePermissionCommand::addOrRemove(bool add) {
    return callOn(behaviorInfoModel(),
                  add ? &BehaviorInfoModel::addPermission : &BehaviorInfoModel::removePermission,
                  m_permission);
}

BehaviorSetStringCommand::BehaviorSetStringCommand(PackageInfoModel *model,
                                                   const QString &behaviorPath,
                                                   const QString &newValue, bool isFinal)
    : BehaviorCommand(model, behaviorPath)
    , m_madeFor(behaviorPath)
    , m_edit{newValue, {}, isFinal} {
}

BehaviorSetStringCommand::~BehaviorSetStringCommand() = default;

void BehaviorSetStringCommand::undo() {
    setValue(m_edit.oldValue);
}

void BehaviorSetStringCommand::redo() {
    setValue(m_edit.newValue);
}

bool BehaviorSetStringCommand::mergeWith(const QUndoCommand *incoming) {
    return mergeIf<BehaviorSetStringCommand>(incoming, [this](const auto &newer) {
        if (newer.m_madeFor != behaviorPath() || newer.id() != id() ||
            !m_edit.takeOver(newer.m_edit))
            return false;
        if (newer.model() == model())
            setBehaviorPath(newer.behaviorPath()); // that step may have changed it
        return true;
    });
}

bool BehaviorSetStringCommand::isFinalCommand() const {
    return MergeableCommand::isFinalCommand() || m_edit.isFinal;
}

BehaviorPathCommand::BehaviorPathCommand(PackageInfoModel *model, const QString &behaviorPath,
                                         const QString &newPath, bool isFinal)
    : BehaviorSetStringCommand(model, behaviorPath, newPath, isFinal) {
    setOldValue(behaviorPath);
    setText(QCoreApplication::translate("Zel::BehaviorPathCommand", "Set behavior path"));
}

int BehaviorPathCommand::id() const {
    return CommandId::behaviorPath;
}

void BehaviorPathCommand::setValue(const QString &value) {
    const QPointer<BehaviorInfoModel> behavior(behaviorInfoModel());
    if (!behavior)
        return;
    behavior->setPath(value);
    // Reads the path back: the model may be unable to represent the text.
    setBehaviorPath(behavior ? behavior->path() : value);
}

BehaviorNatureCommand::BehaviorNatureCommand(PackageInfoModel *model, const QString &behaviorPath,
                                             const QString &newNature, bool isFinal)
    : BehaviorSetStringCommand(model, behaviorPath, newNature, isFinal) {
    setOldValue(callOn(behaviorInfoModel(), &BehaviorInfoModel::nature));
    setText(QCoreApplication::translate("Zel::BehaviorNatureCommand", "Set behavior nature"));
}

int BehaviorNatureCommand::id() const {
    return CommandId::behaviorNature;
}

void BehaviorNatureCommand::setValue(const QString &value) {
    callOn(behaviorInfoModel(), &BehaviorInfoModel::setNature, value);
}

BehaviorSetLocalizedStringCommand::BehaviorSetLocalizedStringCommand(PackageInfoModel *model,
                                                                     const QString &behaviorPath,
                                                                     const QString &newValue,
                                                                     const RobotLanguage &language,
                                                                     bool isFinal)
    : BehaviorSetStringCommand(model, behaviorPath, newValue, isFinal)
    , m_language(language) {
}

BehaviorSetLocalizedStringCommand::~BehaviorSetLocalizedStringCommand() = default;

bool BehaviorSetLocalizedStringCommand::mergeWith(const QUndoCommand *incoming) {
    return mergeIf<BehaviorSetLocalizedStringCommand>(incoming, [&](const auto &newer) {
        return newer.m_language == m_language && BehaviorSetStringCommand::mergeWith(incoming);
    });
}

BehaviorNameCommand::BehaviorNameCommand(PackageInfoModel *model, const QString &behaviorPath,
                                         const QString &newName, const RobotLanguage &language,
                                         bool isFinal)
    : BehaviorSetLocalizedStringCommand(model, behaviorPath, newName, language, isFinal) {
    setOldValue(callOn(behaviorInfoModel(), &BehaviorInfoModel::name, language));
    setText(QCoreApplication::translate("Zel::BehaviorNameCommand", "Set Behavior name (%1)")
                .arg(language.isoCode()));
}

int BehaviorNameCommand::id() const {
    return CommandId::behaviorName;
}

void BehaviorNameCommand::setValue(const QString &value) {
    callOn(behaviorInfoModel(), &BehaviorInfoModel::setName, value, language());
}

BehaviorDescriptionCommand::BehaviorDescriptionCommand(PackageInfoModel *model,
                                                       const QString &behaviorPath,
                                                       const QString &newDescription,
                                                       const RobotLanguage &language, bool isFinal)
    : BehaviorSetLocalizedStringCommand(model, behaviorPath, newDescription, language, isFinal) {
    setOldValue(callOn(behaviorInfoModel(), &BehaviorInfoModel::description, language));
    setText(QCoreApplication::translate("Zel::BehaviorDescriptionCommand",
                                        "Set Behavior description (%1)")
                .arg(language.isoCode()));
}

int BehaviorDescriptionCommand::id() const {
    return CommandId::behaviorDescription;
}

void BehaviorDescriptionCommand::setValue(const QString &value) {
    callOn(behaviorInfoModel(), &BehaviorInfoModel::setDescription, value, language());
}

} // namespace Zel
