#include <packagemodel/dialog_commands.h>

#include "command_ids.h"
#include "entry_call.h"

#include <packagemodel/dialog_info_model.h>

#include <QCoreApplication>
#include <QPointer>

namespace Zel {
namespace {

const QString k_dialogInfoModelTopicCommandText =
    QStringLiteral("Set topic path from %1 to %2 (%3)");

} // namespace

DialogInfoModelCommand::DialogInfoModelCommand(PackageInfoModel *model, const QString &dialogName,
                                               const QString &newValue, bool isFinal)
    : DialogCommand(model, dialogName)
    , m_madeFor(dialogName)
    , m_edit{newValue, {}, isFinal} {
}

DialogInfoModelCommand::~DialogInfoModelCommand() = default;

void DialogInfoModelCommand::undo() {
    setValue(m_edit.oldValue);
}

void DialogInfoModelCommand::redo() {
    setValue(m_edit.newValue);
}

bool DialogInfoModelCommand::mergeWith(const QUndoCommand *incoming) {
    return mergeIf<DialogInfoModelCommand>(incoming, [this](const auto &newer) {
        if (newer.m_madeFor != dialogName() || newer.id() != id() || !m_edit.takeOver(newer.m_edit))
            return false;
        if (newer.model() == model())
            setDialogName(newer.dialogName()); // that step may have changed it
        return true;
    });
}

bool DialogInfoModelCommand::isFinalCommand() const {
    return MergeableCommand::isFinalCommand() || m_edit.isFinal;
}

DialogInfoModelNameCommand::DialogInfoModelNameCommand(PackageInfoModel *model,
                                                       const QString &dialogName,
                                                       const QString &newName, bool isFinal)
    : DialogInfoModelCommand(model, dialogName, newName, isFinal) {
    setOldValue(callOn(dialogInfoModel(), &DialogInfoModel::topicName));
    setText(QCoreApplication::translate("Zel::DialogInfoModelNameCommand",
                                        "Set dialog topic name from %1 to %2")
                .arg(oldValue(), newValue()));
}

int DialogInfoModelNameCommand::id() const {
    return CommandId::dialogName;
}

void DialogInfoModelNameCommand::setValue(const QString &value) {
    const QPointer<DialogInfoModel> dialog(dialogInfoModel());
    if (!dialog)
        return;
    dialog->setTopicName(value);
    // Reads the name back: the model may be unable to represent the text.
    setDialogName(dialog ? dialog->topicName() : value);
}

DialogInfoModelTypeVersionCommand::DialogInfoModelTypeVersionCommand(PackageInfoModel *model,
                                                                     const QString &dialogName,
                                                                     const QString &newTypeVersion,
                                                                     bool isFinal)
    : DialogInfoModelCommand(model, dialogName, newTypeVersion, isFinal) {
    setOldValue(callOn(dialogInfoModel(), &DialogInfoModel::typeVersion));
    setText(QCoreApplication::translate("Zel::DialogInfoModelTypeVersionCommand",
                                        "Set dialog type version from %1 to %2")
                .arg(oldValue(), newValue()));
}

int DialogInfoModelTypeVersionCommand::id() const {
    return CommandId::dialogTypeVersion;
}

void DialogInfoModelTypeVersionCommand::setValue(const QString &value) {
    callOn(dialogInfoModel(), &DialogInfoModel::setTypeVersion, value);
}

DialogInfoModelTopicCommand::DialogInfoModelTopicCommand(PackageInfoModel *model,
                                                         const QString &dialogName,
                                                         const RobotLanguage &language,
                                                         const QString &newTopicPath, bool isFinal)
    : DialogInfoModelCommand(model, dialogName, newTopicPath, isFinal)
    , m_language(language) {
    setOldValue(callOn(dialogInfoModel(), &DialogInfoModel::topic, m_language));
    updateText();
}

int DialogInfoModelTopicCommand::id() const {
    return CommandId::dialogTopic;
}

bool DialogInfoModelTopicCommand::mergeWith(const QUndoCommand *incoming) {
    return mergeIf<DialogInfoModelTopicCommand>(incoming, [&](const auto &newer) {
        if (newer.m_language != m_language || !DialogInfoModelCommand::mergeWith(incoming))
            return false;
        updateText();
        return true;
    });
}

void DialogInfoModelTopicCommand::setValue(const QString &value) {
    callOn(dialogInfoModel(), &DialogInfoModel::setTopic, m_language, value);
}

void DialogInfoModelTopicCommand::updateText() {
    setText(k_dialogInfoModelTopicCommandText.arg(oldValue(), newValue(), m_language.isoCode()));
}

DialogInfoModelRemoveTopicCommand::DialogInfoModelRemoveTopicCommand(PackageInfoModel *model,
                                                                     const QString &dialogName,
                                                                     const RobotLanguage &language)
    : DialogCommand(model, dialogName)
    , m_language(language)
    , m_oldTopic(callOn(dialogInfoModel(), &DialogInfoModel::topic, language)) {
    setText(
        QCoreApplication::translate("Zel::DialogInfoModelRemoveTopicCommand", "Remove language %1")
            .arg(m_language.isoCode()));
}

void DialogInfoModelRemoveTopicCommand::undo() {
    callOn(dialogInfoModel(), &DialogInfoModel::setTopic, m_language, m_oldTopic);
}

void DialogInfoModelRemoveTopicCommand::redo() {
    callOn(dialogInfoModel(), &DialogInfoModel::removeTopic, m_language);
}

} // namespace Zel
