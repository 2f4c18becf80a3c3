#pragma once

#include <packagemodel/packagemodel_export.h>

#include <zel/software_version.h>

#include <QIcon>
#include <QPointer>
#include <QString>
#include <QUndoCommand>

namespace Zel {

class BehaviorInfoModel;
class DialogInfoModel;
class PackageInfoModel;

/// The base of every undoable edit of a package.
///
/// The undo stack owns the commands pushed on it. At each step, a command looks up the entry that
/// it edits by a key, so that entries may be removed and added again: if the entry or the package
/// is gone, the step changes nothing. A command for an absent entry has an empty old value.
///
/// ```cpp
/// class AuthorCommand : public PackageCommand {
/// public:
///     explicit AuthorCommand(PackageInfoModel *package)
///         : PackageCommand(package) {}
///     void undo() override { model()->setAuthor({}); }
///     void redo() override { model()->setAuthor(QStringLiteral("Ines")); }
/// };
/// stack.push(new AuthorCommand(&package));
/// ```
class PACKAGEMODEL_EXPORT PackageCommand : public QUndoCommand {
public:
    /// Edits `model`, which the command does not own.
    explicit PackageCommand(PackageInfoModel *model);
    ~PackageCommand() override;

    /// Takes the edit back.
    void undo() override = 0;
    /// Makes the edit; QUndoStack::push() calls it first.
    void redo() override = 0;

protected:
    /// The package being edited; null once it is deleted.
    PackageInfoModel *model() const;

private:
    QPointer<PackageInfoModel> m_model;
};

/// The base of every undoable edit of one behavior, found by its path.
///
/// ```cpp
/// BehaviorNatureCommand command(&package, QStringLiteral("reading/aloud"),
///                               BehaviorInfoModel::natureSolitary(), true);
/// command.behaviorInfoModel(); // the behavior
/// ```
class PACKAGEMODEL_EXPORT BehaviorCommand : public PackageCommand {
public:
    /// Edits the first behavior with this path.
    BehaviorCommand(PackageInfoModel *model, const QString &behaviorPath);
    ~BehaviorCommand() override;

    /// The first behavior of the package with this path; null if there is none.
    BehaviorInfoModel *behaviorInfoModel() const;
    /// The path by which the command finds the behavior.
    const QString &behaviorPath() const { return m_behaviorPath; }

protected:
    /// Changes behaviorPath(), for commands that rename the behavior.
    void setBehaviorPath(const QString &behaviorPath) { m_behaviorPath = behaviorPath; }

private:
    QString m_behaviorPath;
};

/// The base of every undoable edit of one dialog, found by its topic name.
///
/// ```cpp
/// DialogInfoModelRemoveTopicCommand command(&package, QStringLiteral("book-advice"), french);
/// command.dialogInfoModel(); // the dialog
/// ```
class PACKAGEMODEL_EXPORT DialogCommand : public PackageCommand {
public:
    /// Edits the first dialog with this topic name.
    DialogCommand(PackageInfoModel *model, const QString &dialogName);
    ~DialogCommand() override;

    /// The first dialog of the package with this topic name; null if there is none.
    DialogInfoModel *dialogInfoModel() const;
    /// The topic name by which the command finds the dialog.
    const QString &dialogName() const { return m_dialogName; }

protected:
    /// Changes dialogName(), for commands that rename the dialog.
    void setDialogName(const QString &dialogName) { m_dialogName = dialogName; }

private:
    QString m_dialogName;
};

/// Mixin for commands that can merge with later ones, so that a run of keystrokes in one field is
/// undone in one step. A final command ends the run.
///
/// ```cpp
/// using Text = PackageStringCommand;
/// stack.push(new Text(&package, QStringLiteral("I"), Text::Author, false));
/// stack.push(new Text(&package, QStringLiteral("In"), Text::Author, false));
/// stack.count(); // -> 1
/// ```
class PACKAGEMODEL_EXPORT MergeableCommand {
public:
    /// Commands are not copied.
    MergeableCommand(const MergeableCommand &) = delete;
    MergeableCommand &operator=(const MergeableCommand &) = delete;

    /// Whether the command's run has ended: the command is final, it has merged a final one, or it
    /// has refused the last merge.
    virtual bool isFinalCommand() const;

protected:
    MergeableCommand() = default;
    ~MergeableCommand() = default; // commands are deleted as QUndoCommand

    /// Merges `incoming` if it is a Command and `takeOver`, called with it, returns true. The
    /// result is remembered for isFinalCommand().
    template<typename Command, typename TakeOver>
    bool mergeIf(const QUndoCommand *incoming, TakeOver takeOver) {
        const auto *newer = dynamic_cast<const Command *>(incoming);
        m_mergeAccepted = newer && takeOver(*newer);
        return m_mergeAccepted;
    }

private:
    bool m_mergeAccepted = true;
};

/// The texts that a text command writes when it is redone and undone.
struct PACKAGEMODEL_EXPORT TextEdit {
    QString newValue;     ///< for redo()
    QString oldValue;     ///< for undo()
    bool isFinal = false; ///< nothing more may be merged into it

    /// Takes the new value and the final state of a later edit, and keeps the old value. Returns
    /// false and changes nothing if this edit is final.
    bool takeOver(const TextEdit &newer);
};

/// Sets the icon or the version of a package, each as a separate undo step.
///
/// ```cpp
/// stack.push(new PackageGenericValueCommand<SoftwareVersion>(&package, {1, 2, 0}));
/// ```
template<typename T>
class PACKAGEMODEL_EXPORT PackageGenericValueCommand : public PackageCommand {
public:
    /// Sets `newValue` instead of the current value of the package.
    PackageGenericValueCommand(PackageInfoModel *model, const T &newValue)
        : PackageCommand(model)
        , m_newValue(newValue)
        , m_oldValue(value()) {
        setText(commandName());
    }

    /// The current value of the package.
    T value() const;
    /// Sets the value of the package.
    void setValue(const T &value);
    /// The translated text of the command.
    QString commandName() const;

    /// Sets the old value.
    void undo() override { setValue(m_oldValue); }
    /// Sets the new value.
    void redo() override { setValue(m_newValue); }

private:
    T m_newValue;
    T m_oldValue;
};

/// @cond the members above for each type
template<>
PACKAGEMODEL_EXPORT QIcon PackageGenericValueCommand<QIcon>::value() const;
template<>
PACKAGEMODEL_EXPORT void PackageGenericValueCommand<QIcon>::setValue(const QIcon &value);
template<>
PACKAGEMODEL_EXPORT QString PackageGenericValueCommand<QIcon>::commandName() const;

template<>
PACKAGEMODEL_EXPORT SoftwareVersion PackageGenericValueCommand<SoftwareVersion>::value() const;
template<>
PACKAGEMODEL_EXPORT void
PackageGenericValueCommand<SoftwareVersion>::setValue(const SoftwareVersion &value);
template<>
PACKAGEMODEL_EXPORT QString PackageGenericValueCommand<SoftwareVersion>::commandName() const;

// The base of the package's text commands, which read and write the text themselves: this one reads
// an empty text and writes nothing.
template<>
PACKAGEMODEL_EXPORT QString PackageGenericValueCommand<QString>::value() const;
template<>
PACKAGEMODEL_EXPORT void PackageGenericValueCommand<QString>::setValue(const QString &value);
template<>
PACKAGEMODEL_EXPORT QString PackageGenericValueCommand<QString>::commandName() const;
/// @endcond

} // namespace Zel
