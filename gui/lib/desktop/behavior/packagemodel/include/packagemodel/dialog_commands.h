#pragma once

#include <packagemodel/set_command.h>

#include <zel/robot_language.h>

namespace Zel {

/// The base of the commands that set one text of a dialog. Merges with later ones of the same id()
/// for the same dialog name, whichever the package.
class PACKAGEMODEL_EXPORT DialogInfoModelCommand : public DialogCommand, public MergeableCommand {
public:
    DialogInfoModelCommand(PackageInfoModel *model, const QString &dialogName,
                           const QString &newValue, bool isFinal);
    ~DialogInfoModelCommand() override;

    void undo() override;
    void redo() override;
    bool mergeWith(const QUndoCommand *incoming) override;
    bool isFinalCommand() const override;

    /// Sets the dialog's text; does nothing when the dialog is not there.
    virtual void setValue(const QString &value) = 0;

protected:
    const QString &newValue() const { return m_edit.newValue; }
    const QString &oldValue() const { return m_edit.oldValue; }
    /// For the constructor of a subclass: what undo() writes, empty until then.
    void setOldValue(const QString &oldValue) { m_edit.oldValue = oldValue; }

private:
    QString m_madeFor; // the dialog name when it was made
    TextEdit m_edit;
};

/// Sets the topic name of a dialog, and finds the dialog under its new name from then on.
class PACKAGEMODEL_EXPORT DialogInfoModelNameCommand : public DialogInfoModelCommand {
public:
    DialogInfoModelNameCommand(PackageInfoModel *model, const QString &dialogName,
                               const QString &newName, bool isFinal);

    int id() const override;
    void setValue(const QString &value) override;
};

/// Sets the type version of a dialog.
class PACKAGEMODEL_EXPORT DialogInfoModelTypeVersionCommand : public DialogInfoModelCommand {
public:
    DialogInfoModelTypeVersionCommand(PackageInfoModel *model, const QString &dialogName,
                                      const QString &newTypeVersion, bool isFinal);

    int id() const override;
    void setValue(const QString &value) override;
};

/// Sets the path of a dialog's topic file in one language. Merges within the language; its text
/// then tells the whole way from the first old path to the last new one.
class PACKAGEMODEL_EXPORT DialogInfoModelTopicCommand : public DialogInfoModelCommand {
public:
    DialogInfoModelTopicCommand(PackageInfoModel *model, const QString &dialogName,
                                const RobotLanguage &language, const QString &newTopicPath,
                                bool isFinal);

    int id() const override;
    bool mergeWith(const QUndoCommand *incoming) override;
    void setValue(const QString &value) override;

private:
    void updateText();

    RobotLanguage m_language;
};

/// Removes a dialog's topic file in one language.
class PACKAGEMODEL_EXPORT DialogInfoModelRemoveTopicCommand : public DialogCommand {
public:
    DialogInfoModelRemoveTopicCommand(PackageInfoModel *model, const QString &dialogName,
                                      const RobotLanguage &language);

    void undo() override;
    void redo() override;

private:
    RobotLanguage m_language;
    QString m_oldTopic;
};

} // namespace Zel
