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
/// The undo stack that a command is pushed on owns it. A command looks up the entry that it edits
/// by a key at each step, so that entries may come and go: a step whose entry or package is gone
/// changes nothing, and a command that is made for an entry that is not there takes an empty text
/// for the old value.
class PACKAGEMODEL_EXPORT PackageCommand : public QUndoCommand {
public:
    explicit PackageCommand(PackageInfoModel *model);
    ~PackageCommand() override;

    void undo() override = 0;
    void redo() override = 0;

protected:
    /// The package being edited, which the command does not own; null once it is gone.
    PackageInfoModel *model() const;

private:
    QPointer<PackageInfoModel> m_model;
};

/// The base of every undoable edit of one behavior, found by its path.
class PACKAGEMODEL_EXPORT BehaviorCommand : public PackageCommand {
public:
    BehaviorCommand(PackageInfoModel *model, const QString &behaviorPath);
    ~BehaviorCommand() override;

    /// The first behavior of the package with that path; null when there is none.
    BehaviorInfoModel *behaviorInfoModel() const;
    const QString &behaviorPath() const { return m_behaviorPath; }

protected:
    /// For a command that changes the path itself.
    void setBehaviorPath(const QString &behaviorPath) { m_behaviorPath = behaviorPath; }

private:
    QString m_behaviorPath;
};

/// The base of every undoable edit of one dialog, found by its topic name.
class PACKAGEMODEL_EXPORT DialogCommand : public PackageCommand {
public:
    DialogCommand(PackageInfoModel *model, const QString &dialogName);
    ~DialogCommand() override;

    /// The first dialog of the package with that topic name; null when there is none.
    DialogInfoModel *dialogInfoModel() const;
    const QString &dialogName() const { return m_dialogName; }

protected:
    /// For a command that changes the topic name itself.
    void setDialogName(const QString &dialogName) { m_dialogName = dialogName; }

private:
    QString m_dialogName;
};

/// What a command is besides that may take in those pushed after it, so that a run of keystrokes in
/// one field is undone in one step. A command that is made final closes the run.
class PACKAGEMODEL_EXPORT MergeableCommand {
public:
    MergeableCommand(const MergeableCommand &) = delete;
    MergeableCommand &operator=(const MergeableCommand &) = delete;

    /// Whether the command's run is over: it was made final, it took in a final command, or the
    /// last merge into it was refused.
    virtual bool isFinalCommand() const;

protected:
    MergeableCommand() = default;
    ~MergeableCommand() = default; // commands are deleted as QUndoCommand

    /// Tries a merge, and remembers whether it was accepted: `incoming` has to be a Command, and
    /// `takeOver`, called with it, has to return true.
    template<typename Command, typename TakeOver>
    bool mergeIf(const QUndoCommand *incoming, TakeOver takeOver) {
        const auto *newer = dynamic_cast<const Command *>(incoming);
        m_mergeAccepted = newer && takeOver(*newer);
        return m_mergeAccepted;
    }

private:
    bool m_mergeAccepted = true;
};

/// What a text command writes: one text when it is done, the other when it is undone.
struct PACKAGEMODEL_EXPORT TextEdit {
    QString newValue;
    QString oldValue;
    bool isFinal = false; ///< nothing more may be merged into it

    /// Writes the new value of a later edit from now on, and is final when that is; the old value
    /// stays. Returns false, and changes nothing, when this edit is final.
    bool takeOver(const TextEdit &newer);
};

/// Sets a value of the package that no key selects: its icon or its version. Each is an undo step
/// of its own.
template<typename T>
class PACKAGEMODEL_EXPORT PackageGenericValueCommand : public PackageCommand {
public:
    PackageGenericValueCommand(PackageInfoModel *model, const T &newValue)
        : PackageCommand(model)
        , m_newValue(newValue)
        , m_oldValue(value()) {
        setText(commandName());
    }

    /// The package's value.
    T value() const;
    void setValue(const T &value);
    /// The text of the command; translated.
    QString commandName() const;

    void undo() override { setValue(m_oldValue); }
    void redo() override { setValue(m_newValue); }

private:
    T m_newValue;
    T m_oldValue;
};

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

// The base of the package's text commands, which say themselves what they read and write: this one
// reads an empty text and writes nothing.
template<>
PACKAGEMODEL_EXPORT QString PackageGenericValueCommand<QString>::value() const;
template<>
PACKAGEMODEL_EXPORT void PackageGenericValueCommand<QString>::setValue(const QString &value);
template<>
PACKAGEMODEL_EXPORT QString PackageGenericValueCommand<QString>::commandName() const;

} // namespace Zel
