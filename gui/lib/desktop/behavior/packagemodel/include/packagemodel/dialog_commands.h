#pragma once

#include <packagemodel/set_command.h>

#include <zel/robot_language.h>

namespace Zel {

/// The base of commands that set one text of a dialog. Merges with later commands with the same
/// id() and dialog name, even of another package.
///
/// ```cpp
/// stack.push(new DialogInfoModelNameCommand(&package, dialog, QStringLiteral("books"), true));
/// ```
class PACKAGEMODEL_EXPORT DialogInfoModelCommand : public DialogCommand, public MergeableCommand {
public:
    /// `isFinal` keeps later commands from merging into this one.
    DialogInfoModelCommand(PackageInfoModel *model, const QString &dialogName,
                           const QString &newValue, bool isFinal);
    ~DialogInfoModelCommand() override;

    void undo() override;
    void redo() override;
    /// Merges a later command for the same text.
    bool mergeWith(const QUndoCommand *incoming) override;
    bool isFinalCommand() const override;

    /// Sets the text of the dialog; does nothing if there is no such dialog.
    virtual void setValue(const QString &value) = 0;

protected:
    /// The text for redo().
    const QString &newValue() const { return m_edit.newValue; }
    /// The text for undo().
    const QString &oldValue() const { return m_edit.oldValue; }
    /// Sets the text for undo(), for constructors of subclasses. It is empty before.
    void setOldValue(const QString &oldValue) { m_edit.oldValue = oldValue; }

private:
    QString m_madeFor; // the dialog name at construction
    TextEdit m_edit;
};

/// Sets the topic name of a dialog, and finds the dialog by its new name from then on.
///
/// ```cpp
/// stack.push(new DialogInfoModelNameCommand(&package, dialog, QStringLiteral("books"), true));
/// ```
class PACKAGEMODEL_EXPORT DialogInfoModelNameCommand : public DialogInfoModelCommand {
public:
    /// `isFinal` keeps later commands from merging into this one.
    DialogInfoModelNameCommand(PackageInfoModel *model, const QString &dialogName,
                               const QString &newName, bool isFinal);

    /// The same for all commands of this class.
    int id() const override;
    void setValue(const QString &value) override;
};

/// Sets the type version of a dialog.
///
/// ```cpp
/// const QString version = QStringLiteral("1.1");
/// stack.push(new DialogInfoModelTypeVersionCommand(&package, dialog, version, true));
/// ```
class PACKAGEMODEL_EXPORT DialogInfoModelTypeVersionCommand : public DialogInfoModelCommand {
public:
    /// `isFinal` keeps later commands from merging into this one.
    DialogInfoModelTypeVersionCommand(PackageInfoModel *model, const QString &dialogName,
                                      const QString &newTypeVersion, bool isFinal);

    /// The same for all commands of this class.
    int id() const override;
    void setValue(const QString &value) override;
};

/// Sets the path of a dialog's topic file in one language. Merges within the language; the text of
/// the step then names the first old path and the last new one.
///
/// ```cpp
/// const QString file = QStringLiteral("dialogs/books_frf.top");
/// stack.push(new DialogInfoModelTopicCommand(&package, dialog, french, file, true));
/// ```
class PACKAGEMODEL_EXPORT DialogInfoModelTopicCommand : public DialogInfoModelCommand {
public:
    /// `isFinal` keeps later commands from merging into this one.
    DialogInfoModelTopicCommand(PackageInfoModel *model, const QString &dialogName,
                                const RobotLanguage &language, const QString &newTopicPath,
                                bool isFinal);

    /// The same for all commands of this class.
    int id() const override;
    /// Merges a later command for the same text.
    bool mergeWith(const QUndoCommand *incoming) override;
    void setValue(const QString &value) override;

private:
    void updateText();

    RobotLanguage m_language;
};

/// Removes a dialog's topic file in one language.
///
/// ```cpp
/// stack.push(new DialogInfoModelRemoveTopicCommand(&package, dialog, french));
/// ```
class PACKAGEMODEL_EXPORT DialogInfoModelRemoveTopicCommand : public DialogCommand {
public:
    /// Removes the topic file of `language`.
    DialogInfoModelRemoveTopicCommand(PackageInfoModel *model, const QString &dialogName,
                                      const RobotLanguage &language);

    void undo() override;
    void redo() override;

private:
    RobotLanguage m_language;
    QString m_oldTopic;
};

} // namespace Zel
