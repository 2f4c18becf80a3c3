#pragma once

#include <packagemodel/set_command.h>

#include <zel/robot_language.h>

namespace Zel {

/// Toggles whether users may request the behavior, starting from its state at construction.
///
/// ```cpp
/// stack.push(new BehaviorSwitchUserRequestableCommand(&package, path));
/// ```
class PACKAGEMODEL_EXPORT BehaviorSwitchUserRequestableCommand : public BehaviorCommand {
public:
    /// Remembers the current state of the behavior.
    BehaviorSwitchUserRequestableCommand(PackageInfoModel *model, const QString &behaviorPath);

    void undo() override;
    void redo() override;

private:
    bool m_wasUserRequestable;
};

/// Adds a permission to a behavior or removes one. Undoing does the opposite, even if the command
/// changed nothing.
///
/// ```cpp
/// const QString camera = QStringLiteral("camera");
/// stack.push(new BehaviorAddRemovePermissionCommand(&package, path, camera, true));
/// ```
class PACKAGEMODEL_EXPORT BehaviorAddRemovePermissionCommand : public BehaviorCommand {
public:
    /// Adds `permission` if `isAdd`, otherwise removes it.
    BehaviorAddRemovePermissionCommand(PackageInfoModel *model, const QString &behaviorPath,
                                       const QString &permission, bool isAdd);

    void undo() override;
    void redo() override;

    /// Adds or removes the permission; returns whether the behavior changed.
    bool addOrRemove(bool add);
    /// The result of the last step; false before the first.
    bool lastResult() const { return m_lastResult; }

private:
    QString m_permission;
    bool m_isAdd;
    bool m_lastResult = false;
};

/// The base of commands that set one text of a behavior. Merges with later commands with the same
/// id() and behavior path, even of another package.
///
/// ```cpp
/// stack.push(new BehaviorPathCommand(&package, path, QStringLiteral("read"), true));
/// ```
class PACKAGEMODEL_EXPORT BehaviorSetStringCommand : public BehaviorCommand,
                                                     public MergeableCommand {
public:
    /// `isFinal` keeps later commands from merging into this one.
    BehaviorSetStringCommand(PackageInfoModel *model, const QString &behaviorPath,
                             const QString &newValue, bool isFinal);
    ~BehaviorSetStringCommand() override;

    void undo() override;
    void redo() override;
    /// Merges a later command for the same text.
    bool mergeWith(const QUndoCommand *incoming) override;
    bool isFinalCommand() const override;

    /// Sets the text of the behavior; does nothing if there is no such behavior.
    virtual void setValue(const QString &value) = 0;

protected:
    /// Sets the text for undo(), for constructors of subclasses. It is empty before.
    void setOldValue(const QString &oldValue) { m_edit.oldValue = oldValue; }

private:
    QString m_madeFor; // the behavior path at construction
    TextEdit m_edit;
};

/// Sets the path of a behavior, and finds the behavior by its new path from then on.
///
/// ```cpp
/// stack.push(new BehaviorPathCommand(&package, path, QStringLiteral("read"), true));
/// ```
class PACKAGEMODEL_EXPORT BehaviorPathCommand : public BehaviorSetStringCommand {
public:
    /// `isFinal` keeps later commands from merging into this one.
    BehaviorPathCommand(PackageInfoModel *model, const QString &behaviorPath,
                        const QString &newPath, bool isFinal);

    /// The same for all commands of this class.
    int id() const override;
    void setValue(const QString &value) override;
};

/// Sets the nature of a behavior.
///
/// ```cpp
/// const QString nature = BehaviorInfoModel::natureSolitary();
/// stack.push(new BehaviorNatureCommand(&package, path, nature, true));
/// ```
class PACKAGEMODEL_EXPORT BehaviorNatureCommand : public BehaviorSetStringCommand {
public:
    /// `isFinal` keeps later commands from merging into this one.
    BehaviorNatureCommand(PackageInfoModel *model, const QString &behaviorPath,
                          const QString &newNature, bool isFinal);

    /// The same for all commands of this class.
    int id() const override;
    void setValue(const QString &value) override;
};

/// The base of commands that set a text of a behavior in one language. Merges within the language.
///
/// ```cpp
/// stack.push(new BehaviorNameCommand(&package, path, QStringLiteral("Lecture"), french, true));
/// ```
class PACKAGEMODEL_EXPORT BehaviorSetLocalizedStringCommand : public BehaviorSetStringCommand {
public:
    /// `isFinal` keeps later commands from merging into this one.
    BehaviorSetLocalizedStringCommand(PackageInfoModel *model, const QString &behaviorPath,
                                      const QString &newValue, const RobotLanguage &language,
                                      bool isFinal);
    ~BehaviorSetLocalizedStringCommand() override;

    /// Merges a later command for the same text.
    bool mergeWith(const QUndoCommand *incoming) override;

protected:
    /// The language of the text.
    const RobotLanguage &language() const { return m_language; }

private:
    RobotLanguage m_language;
};

/// Sets the name of a behavior in one language.
///
/// ```cpp
/// stack.push(new BehaviorNameCommand(&package, path, QStringLiteral("Lecture"), french, true));
/// ```
class PACKAGEMODEL_EXPORT BehaviorNameCommand : public BehaviorSetLocalizedStringCommand {
public:
    /// `isFinal` keeps later commands from merging into this one.
    BehaviorNameCommand(PackageInfoModel *model, const QString &behaviorPath,
                        const QString &newName, const RobotLanguage &language, bool isFinal);

    /// The same for all commands of this class.
    int id() const override;
    void setValue(const QString &value) override;
};

/// Sets the description of a behavior in one language.
///
/// ```cpp
/// const QString text = QStringLiteral("Reads a book aloud.");
/// stack.push(new BehaviorDescriptionCommand(&package, path, text, english, true));
/// ```
class PACKAGEMODEL_EXPORT BehaviorDescriptionCommand : public BehaviorSetLocalizedStringCommand {
public:
    /// `isFinal` keeps later commands from merging into this one.
    BehaviorDescriptionCommand(PackageInfoModel *model, const QString &behaviorPath,
                               const QString &newDescription, const RobotLanguage &language,
                               bool isFinal);

    /// The same for all commands of this class.
    int id() const override;
    void setValue(const QString &value) override;
};

/// The base of commands that set one item of a list of a behavior. Merges within the index.
///
/// An item is identified by the key of its list (a language or a purpose) and its index, which is
/// counted from 0. An index beyond the end of the list is ignored.
///
/// ```cpp
/// const QString tag = QStringLiteral("books");
/// stack.push(new BehaviorSetTagCommand(&package, path, tag, english, 0, true));
/// ```
class PACKAGEMODEL_EXPORT BehaviorSetIndexedStringCommand : public BehaviorSetStringCommand {
public:
    /// Sets the item at `index`; `isFinal` keeps later commands from merging.
    BehaviorSetIndexedStringCommand(PackageInfoModel *model, const QString &behaviorPath,
                                    const QString &newValue, int index, bool isFinal);
    ~BehaviorSetIndexedStringCommand() override;

    /// Merges a later command for the same text.
    bool mergeWith(const QUndoCommand *incoming) override;

protected:
    /// The index of the item.
    int index() const { return m_index; }

private:
    int m_index;
};

/// The base of commands that set one item of a list of a language or a purpose. Merges within the
/// list and the index.
///
/// ```cpp
/// const QString tag = QStringLiteral("books");
/// stack.push(new BehaviorSetTagCommand(&package, path, tag, english, 0, true));
/// ```
template<typename T>
class PACKAGEMODEL_EXPORT BehaviorSetTaggedIndexedStringCommand
    : public BehaviorSetIndexedStringCommand {
public:
    /// Sets the item at `index`; `isFinal` keeps later commands from merging.
    BehaviorSetTaggedIndexedStringCommand(PackageInfoModel *model, const QString &behaviorPath,
                                          const QString &newValue, const T &tag, int index,
                                          bool isFinal);
    ~BehaviorSetTaggedIndexedStringCommand() override;

    /// Merges a later command for the same text.
    bool mergeWith(const QUndoCommand *incoming) override;

protected:
    /// The language or purpose of the list.
    const T &tag() const { return m_tag; }

private:
    T m_tag;
};

/// @cond
extern template class BehaviorSetTaggedIndexedStringCommand<RobotLanguage>;
extern template class BehaviorSetTaggedIndexedStringCommand<QString>;
/// @endcond

/// The base of commands that set one item of the list of a language.
///
/// ```cpp
/// const QString tag = QStringLiteral("books");
/// stack.push(new BehaviorSetTagCommand(&package, path, tag, english, 0, true));
/// ```
class PACKAGEMODEL_EXPORT BehaviorSetLocalizedIndexedStringCommand
    : public BehaviorSetTaggedIndexedStringCommand<RobotLanguage> {
public:
    /// Sets the item at `index`; `isFinal` keeps later commands from merging.
    BehaviorSetLocalizedIndexedStringCommand(PackageInfoModel *model, const QString &behaviorPath,
                                             const QString &newValue, const RobotLanguage &language,
                                             int index, bool isFinal);
    ~BehaviorSetLocalizedIndexedStringCommand() override;
};

/// The base of commands that set one item of the list of a purpose.
///
/// ```cpp
/// stack.push(new BehaviorSetConditionCommand(&package, path, QStringLiteral("battery > 30"),
///                                            QStringLiteral("start"), 0, true));
/// ```
class PACKAGEMODEL_EXPORT BehaviorSetPurposedIndexedStringCommand
    : public BehaviorSetTaggedIndexedStringCommand<QString> {
public:
    /// Sets the item at `index`; `isFinal` keeps later commands from merging.
    BehaviorSetPurposedIndexedStringCommand(PackageInfoModel *model, const QString &behaviorPath,
                                            const QString &newValue, const QString &purpose,
                                            int index, bool isFinal);
    ~BehaviorSetPurposedIndexedStringCommand() override;
};

/// Sets a tag of a behavior.
///
/// ```cpp
/// const QString text = QStringLiteral("books");
/// stack.push(new BehaviorSetTagCommand(&package, path, text, english, 0, true));
/// ```
class PACKAGEMODEL_EXPORT BehaviorSetTagCommand : public BehaviorSetLocalizedIndexedStringCommand {
public:
    /// Sets the item at `index`; `isFinal` keeps later commands from merging.
    BehaviorSetTagCommand(PackageInfoModel *model, const QString &behaviorPath,
                          const QString &newValue, const RobotLanguage &language, int index,
                          bool isFinal);

    /// The same for all commands of this class.
    int id() const override;
    void setValue(const QString &value) override;
};

/// Sets a trigger sentence of a behavior.
///
/// ```cpp
/// const QString text = QStringLiteral("Read to me");
/// stack.push(new BehaviorSetTriggerSentenceCommand(&package, path, text, english, 0, true));
/// ```
class PACKAGEMODEL_EXPORT BehaviorSetTriggerSentenceCommand
    : public BehaviorSetLocalizedIndexedStringCommand {
public:
    /// Sets the item at `index`; `isFinal` keeps later commands from merging.
    BehaviorSetTriggerSentenceCommand(PackageInfoModel *model, const QString &behaviorPath,
                                      const QString &newValue, const RobotLanguage &language,
                                      int index, bool isFinal);

    /// The same for all commands of this class.
    int id() const override;
    void setValue(const QString &value) override;
};

/// Sets a loading response of a behavior.
///
/// ```cpp
/// const QString text = QStringLiteral("One moment");
/// stack.push(new BehaviorSetLoadingResponseCommand(&package, path, text, english, 0, true));
/// ```
class PACKAGEMODEL_EXPORT BehaviorSetLoadingResponseCommand
    : public BehaviorSetLocalizedIndexedStringCommand {
public:
    /// Sets the item at `index`; `isFinal` keeps later commands from merging.
    BehaviorSetLoadingResponseCommand(PackageInfoModel *model, const QString &behaviorPath,
                                      const QString &newValue, const RobotLanguage &language,
                                      int index, bool isFinal);

    /// The same for all commands of this class.
    int id() const override;
    void setValue(const QString &value) override;
};

/// Sets a condition of a behavior.
///
/// ```cpp
/// const QString condition = QStringLiteral("battery > 30");
/// const QString purpose = QStringLiteral("start");
/// stack.push(new BehaviorSetConditionCommand(&package, path, condition, purpose, 0, true));
/// ```
class PACKAGEMODEL_EXPORT BehaviorSetConditionCommand
    : public BehaviorSetPurposedIndexedStringCommand {
public:
    /// Sets the item at `index`; `isFinal` keeps later commands from merging.
    BehaviorSetConditionCommand(PackageInfoModel *model, const QString &behaviorPath,
                                const QString &newValue, const QString &purpose, int index,
                                bool isFinal);

    /// The same for all commands of this class.
    int id() const override;
    void setValue(const QString &value) override;
};

/// The base of commands that add one item to a list of a behavior or remove one.
///
/// An item is added before the one at the index, or at the end if there is none; a list refuses a
/// text that it has already. The command remembers the actual position of the item, where undoing
/// removes it; undoing a removal restores the text. Once a step has failed, all later ones do
/// nothing.
///
/// ```cpp
/// using Command = BehaviorAddRemoveTagCommand;
/// stack.push(Command::addCommand(&package, path, QStringLiteral("books"), english, 0));
/// ```
template<typename T>
class PACKAGEMODEL_EXPORT BehaviorAddRemoveTaggedStringCommand : public BehaviorCommand {
public:
    /// Adds `value` before the item at `index` if `isAdd`, otherwise removes that item; `value` is
    /// then empty.
    BehaviorAddRemoveTaggedStringCommand(PackageInfoModel *model, const QString &behaviorPath,
                                         const QString &value, const T &tag, int index, bool isAdd);
    ~BehaviorAddRemoveTaggedStringCommand() override;

    /// Takes the edit back.
    void undo() override;
    /// Makes the edit.
    void redo() override;

    /// Adds `value`. Returns the index of the first item equal to it, or -1 if the list refuses it.
    virtual int add(const QString &value, int index) = 0;
    /// Removes the item at `index` and returns its text. Sets `ok`, if not null, to whether an item
    /// was removed.
    virtual QString remove(int index, bool *ok) = 0;

protected:
    /// The language or purpose of the list.
    const T &tag() const { return m_tag; }

private:
    void step(bool isAdd);

    QString m_value;
    T m_tag;
    int m_index;
    bool m_isAdd;
    bool m_succeeded = true;
};

/// @cond
extern template class BehaviorAddRemoveTaggedStringCommand<RobotLanguage>;
extern template class BehaviorAddRemoveTaggedStringCommand<QString>;
/// @endcond

/// The base of commands that add or remove one item of the list of a language.
///
/// ```cpp
/// using Command = BehaviorAddRemoveTagCommand;
/// stack.push(Command::removeCommand(&package, path, english, 0));
/// ```
class PACKAGEMODEL_EXPORT BehaviorAddRemoveLocalizedStringCommand
    : public BehaviorAddRemoveTaggedStringCommand<RobotLanguage> {
public:
    /// Adds `value` before the item at `index` if `isAdd`, otherwise removes that item; `value` is
    /// then empty.
    BehaviorAddRemoveLocalizedStringCommand(PackageInfoModel *model, const QString &behaviorPath,
                                            const QString &value, const RobotLanguage &language,
                                            int index, bool isAdd);
    ~BehaviorAddRemoveLocalizedStringCommand() override;
};

/// The base of commands that add or remove one item of the list of a purpose.
///
/// ```cpp
/// using Command = BehaviorAddRemoveConditionCommand;
/// stack.push(Command::removeCommand(&package, path, QStringLiteral("start"), 0));
/// ```
class PACKAGEMODEL_EXPORT BehaviorAddRemovePurposedStringCommand
    : public BehaviorAddRemoveTaggedStringCommand<QString> {
public:
    /// Adds `value` before the item at `index` if `isAdd`, otherwise removes that item; `value` is
    /// then empty.
    BehaviorAddRemovePurposedStringCommand(PackageInfoModel *model, const QString &behaviorPath,
                                           const QString &value, const QString &purpose, int index,
                                           bool isAdd);
    ~BehaviorAddRemovePurposedStringCommand() override;
};

/// Adds a tag to a behavior or removes one.
///
/// ```cpp
/// using Command = BehaviorAddRemoveTagCommand;
/// stack.push(Command::addCommand(&package, path, QStringLiteral("books"), english, 0));
/// ```
class PACKAGEMODEL_EXPORT BehaviorAddRemoveTagCommand
    : public BehaviorAddRemoveLocalizedStringCommand {
public:
    /// Adds `value` before the item at `index` if `isAdd`, otherwise removes that item; `value` is
    /// then empty.
    BehaviorAddRemoveTagCommand(PackageInfoModel *model, const QString &behaviorPath,
                                const QString &value, const RobotLanguage &language, int index,
                                bool isAdd);

    /// A command that adds `value`; owned by the caller until it is pushed on an undo stack.
    [[nodiscard]] static BehaviorAddRemoveTagCommand *
    addCommand(PackageInfoModel *model, const QString &behaviorPath, const QString &value,
               const RobotLanguage &language, int index);
    /// A command that removes the item at `index`; owned by the caller until it is pushed.
    [[nodiscard]] static BehaviorAddRemoveTagCommand *removeCommand(PackageInfoModel *model,
                                                                    const QString &behaviorPath,
                                                                    const RobotLanguage &language,
                                                                    int index);

    int add(const QString &value, int index) override;
    QString remove(int index, bool *ok) override;
};

/// Adds a trigger sentence to a behavior or removes one.
///
/// ```cpp
/// using Command = BehaviorAddRemoveTriggerSentenceCommand;
/// stack.push(Command::addCommand(&package, path, QStringLiteral("Read to me"), english, 0));
/// ```
class PACKAGEMODEL_EXPORT BehaviorAddRemoveTriggerSentenceCommand
    : public BehaviorAddRemoveLocalizedStringCommand {
public:
    /// Adds `value` before the item at `index` if `isAdd`, otherwise removes that item; `value` is
    /// then empty.
    BehaviorAddRemoveTriggerSentenceCommand(PackageInfoModel *model, const QString &behaviorPath,
                                            const QString &value, const RobotLanguage &language,
                                            int index, bool isAdd);

    /// A command that adds `value`; owned by the caller until it is pushed on an undo stack.
    [[nodiscard]] static BehaviorAddRemoveTriggerSentenceCommand *
    addCommand(PackageInfoModel *model, const QString &behaviorPath, const QString &value,
               const RobotLanguage &language, int index);
    /// A command that removes the item at `index`; owned by the caller until it is pushed.
    [[nodiscard]] static BehaviorAddRemoveTriggerSentenceCommand *
    removeCommand(PackageInfoModel *model, const QString &behaviorPath,
                  const RobotLanguage &language, int index);

    int add(const QString &value, int index) override;
    QString remove(int index, bool *ok) override;
};

/// Adds a loading response to a behavior or removes one.
///
/// ```cpp
/// using Command = BehaviorAddRemoveLoadingResponseCommand;
/// stack.push(Command::addCommand(&package, path, QStringLiteral("One moment"), english, 0));
/// ```
class PACKAGEMODEL_EXPORT BehaviorAddRemoveLoadingResponseCommand
    : public BehaviorAddRemoveLocalizedStringCommand {
public:
    /// Adds `value` before the item at `index` if `isAdd`, otherwise removes that item; `value` is
    /// then empty.
    BehaviorAddRemoveLoadingResponseCommand(PackageInfoModel *model, const QString &behaviorPath,
                                            const QString &value, const RobotLanguage &language,
                                            int index, bool isAdd);

    /// A command that adds `value`; owned by the caller until it is pushed on an undo stack.
    [[nodiscard]] static BehaviorAddRemoveLoadingResponseCommand *
    addCommand(PackageInfoModel *model, const QString &behaviorPath, const QString &value,
               const RobotLanguage &language, int index);
    /// A command that removes the item at `index`; owned by the caller until it is pushed.
    [[nodiscard]] static BehaviorAddRemoveLoadingResponseCommand *
    removeCommand(PackageInfoModel *model, const QString &behaviorPath,
                  const RobotLanguage &language, int index);

    int add(const QString &value, int index) override;
    QString remove(int index, bool *ok) override;
};

/// Adds a condition to a behavior or removes one.
///
/// ```cpp
/// using Command = BehaviorAddRemoveConditionCommand;
/// const QString condition = QStringLiteral("battery > 30");
/// stack.push(Command::addCommand(&package, path, condition, QStringLiteral("start"), 0));
/// ```
class PACKAGEMODEL_EXPORT BehaviorAddRemoveConditionCommand
    : public BehaviorAddRemovePurposedStringCommand {
public:
    /// Adds `value` before the item at `index` if `isAdd`, otherwise removes that item; `value` is
    /// then empty.
    BehaviorAddRemoveConditionCommand(PackageInfoModel *model, const QString &behaviorPath,
                                      const QString &value, const QString &purpose, int index,
                                      bool isAdd);

    /// A command that adds `value`; owned by the caller until it is pushed on an undo stack.
    [[nodiscard]] static BehaviorAddRemoveConditionCommand *
    addCommand(PackageInfoModel *model, const QString &behaviorPath, const QString &value,
               const QString &purpose, int index);
    /// A command that removes the item at `index`; owned by the caller until it is pushed.
    [[nodiscard]] static BehaviorAddRemoveConditionCommand *
    removeCommand(PackageInfoModel *model, const QString &behaviorPath, const QString &purpose,
                  int index);

    int add(const QString &value, int index) override;
    QString remove(int index, bool *ok) override;
};

} // namespace Zel
