#pragma once

#include <packagemodel/set_command.h>

#include <zel/robot_language.h>

namespace Zel {

/// Makes a behavior that a user may ask for one that he may not, or the other way round, as it is
/// when the command is made.
class PACKAGEMODEL_EXPORT BehaviorSwitchUserRequestableCommand : public BehaviorCommand {
public:
    BehaviorSwitchUserRequestableCommand(PackageInfoModel *model, const QString &behaviorPath);

    void undo() override;
    void redo() override;

private:
    bool m_wasUserRequestable;
};

/// Adds a permission to a behavior, or removes one. Undoing does the opposite, also when doing
/// changed nothing.
class PACKAGEMODEL_EXPORT BehaviorAddRemovePermissionCommand : public BehaviorCommand {
public:
    BehaviorAddRemovePermissionCommand(PackageInfoModel *model, const QString &behaviorPath,
                                       const QString &permission, bool isAdd);

    void undo() override;
    void redo() override;

    /// Adds the permission, or removes it; returns whether the behavior changed.
    bool addOrRemove(bool add);
    /// What the last step returned; false before the first.
    bool lastResult() const { return m_lastResult; }

private:
    QString m_permission;
    bool m_isAdd;
    bool m_lastResult = false;
};

/// The base of the commands that set one text of a behavior. Merges with later ones of the same
/// id() for the same behavior path, whichever the package.
class PACKAGEMODEL_EXPORT BehaviorSetStringCommand : public BehaviorCommand,
                                                     public MergeableCommand {
public:
    BehaviorSetStringCommand(PackageInfoModel *model, const QString &behaviorPath,
                             const QString &newValue, bool isFinal);
    ~BehaviorSetStringCommand() override;

    void undo() override;
    void redo() override;
    bool mergeWith(const QUndoCommand *incoming) override;
    bool isFinalCommand() const override;

    /// Sets the behavior's text; does nothing when the behavior is not there.
    virtual void setValue(const QString &value) = 0;

protected:
    /// For the constructor of a subclass: what undo() writes, empty until then.
    void setOldValue(const QString &oldValue) { m_edit.oldValue = oldValue; }

private:
    QString m_madeFor; // the behavior path when it was made
    TextEdit m_edit;
};

/// Sets the path of a behavior, and finds the behavior under its new path from then on.
class PACKAGEMODEL_EXPORT BehaviorPathCommand : public BehaviorSetStringCommand {
public:
    BehaviorPathCommand(PackageInfoModel *model, const QString &behaviorPath,
                        const QString &newPath, bool isFinal);

    int id() const override;
    void setValue(const QString &value) override;
};

/// Sets the nature of a behavior.
class PACKAGEMODEL_EXPORT BehaviorNatureCommand : public BehaviorSetStringCommand {
public:
    BehaviorNatureCommand(PackageInfoModel *model, const QString &behaviorPath,
                          const QString &newNature, bool isFinal);

    int id() const override;
    void setValue(const QString &value) override;
};

/// The base of the commands that set a behavior's text in one language. Merges within the language.
class PACKAGEMODEL_EXPORT BehaviorSetLocalizedStringCommand : public BehaviorSetStringCommand {
public:
    BehaviorSetLocalizedStringCommand(PackageInfoModel *model, const QString &behaviorPath,
                                      const QString &newValue, const RobotLanguage &language,
                                      bool isFinal);
    ~BehaviorSetLocalizedStringCommand() override;

    bool mergeWith(const QUndoCommand *incoming) override;

protected:
    const RobotLanguage &language() const { return m_language; }

private:
    RobotLanguage m_language;
};

/// Sets the name of a behavior in one language.
class PACKAGEMODEL_EXPORT BehaviorNameCommand : public BehaviorSetLocalizedStringCommand {
public:
    BehaviorNameCommand(PackageInfoModel *model, const QString &behaviorPath,
                        const QString &newName, const RobotLanguage &language, bool isFinal);

    int id() const override;
    void setValue(const QString &value) override;
};

/// Sets the description of a behavior in one language.
class PACKAGEMODEL_EXPORT BehaviorDescriptionCommand : public BehaviorSetLocalizedStringCommand {
public:
    BehaviorDescriptionCommand(PackageInfoModel *model, const QString &behaviorPath,
                               const QString &newDescription, const RobotLanguage &language,
                               bool isFinal);

    int id() const override;
    void setValue(const QString &value) override;
};

// The items of a behavior's lists. An item is found by the key of its list, a language or a
// purpose, and its index, counted from 0 and never negative. An index beyond the end of the list is
// left alone.

/// The base of the commands that set one item of a list of a behavior. Merges within the index.
class PACKAGEMODEL_EXPORT BehaviorSetIndexedStringCommand : public BehaviorSetStringCommand {
public:
    BehaviorSetIndexedStringCommand(PackageInfoModel *model, const QString &behaviorPath,
                                    const QString &newValue, int index, bool isFinal);
    ~BehaviorSetIndexedStringCommand() override;

    bool mergeWith(const QUndoCommand *incoming) override;

protected:
    int index() const { return m_index; }

private:
    int m_index;
};

/// The same for a list that stands under a language or a purpose. Merges within the list too.
template<typename T>
class PACKAGEMODEL_EXPORT BehaviorSetTaggedIndexedStringCommand
    : public BehaviorSetIndexedStringCommand {
public:
    BehaviorSetTaggedIndexedStringCommand(PackageInfoModel *model, const QString &behaviorPath,
                                          const QString &newValue, const T &tag, int index,
                                          bool isFinal);
    ~BehaviorSetTaggedIndexedStringCommand() override;

    bool mergeWith(const QUndoCommand *incoming) override;

protected:
    const T &tag() const { return m_tag; }

private:
    T m_tag;
};

extern template class BehaviorSetTaggedIndexedStringCommand<RobotLanguage>;
extern template class BehaviorSetTaggedIndexedStringCommand<QString>;

/// The base of the commands that set an item of a list that stands under a language.
class PACKAGEMODEL_EXPORT BehaviorSetLocalizedIndexedStringCommand
    : public BehaviorSetTaggedIndexedStringCommand<RobotLanguage> {
public:
    BehaviorSetLocalizedIndexedStringCommand(PackageInfoModel *model, const QString &behaviorPath,
                                             const QString &newValue, const RobotLanguage &language,
                                             int index, bool isFinal);
    ~BehaviorSetLocalizedIndexedStringCommand() override;
};

/// The base of the commands that set an item of a list that stands under a purpose.
class PACKAGEMODEL_EXPORT BehaviorSetPurposedIndexedStringCommand
    : public BehaviorSetTaggedIndexedStringCommand<QString> {
public:
    BehaviorSetPurposedIndexedStringCommand(PackageInfoModel *model, const QString &behaviorPath,
                                            const QString &newValue, const QString &purpose,
                                            int index, bool isFinal);
    ~BehaviorSetPurposedIndexedStringCommand() override;
};

/// Sets a tag of a behavior.
class PACKAGEMODEL_EXPORT BehaviorSetTagCommand : public BehaviorSetLocalizedIndexedStringCommand {
public:
    BehaviorSetTagCommand(PackageInfoModel *model, const QString &behaviorPath,
                          const QString &newValue, const RobotLanguage &language, int index,
                          bool isFinal);

    int id() const override;
    void setValue(const QString &value) override;
};

/// Sets a trigger sentence of a behavior.
class PACKAGEMODEL_EXPORT BehaviorSetTriggerSentenceCommand
    : public BehaviorSetLocalizedIndexedStringCommand {
public:
    BehaviorSetTriggerSentenceCommand(PackageInfoModel *model, const QString &behaviorPath,
                                      const QString &newValue, const RobotLanguage &language,
                                      int index, bool isFinal);

    int id() const override;
    void setValue(const QString &value) override;
};

/// Sets a loading response of a behavior.
class PACKAGEMODEL_EXPORT BehaviorSetLoadingResponseCommand
    : public BehaviorSetLocalizedIndexedStringCommand {
public:
    BehaviorSetLoadingResponseCommand(PackageInfoModel *model, const QString &behaviorPath,
                                      const QString &newValue, const RobotLanguage &language,
                                      int index, bool isFinal);

    int id() const override;
    void setValue(const QString &value) override;
};

/// Sets a condition of a behavior.
class PACKAGEMODEL_EXPORT BehaviorSetConditionCommand
    : public BehaviorSetPurposedIndexedStringCommand {
public:
    BehaviorSetConditionCommand(PackageInfoModel *model, const QString &behaviorPath,
                                const QString &newValue, const QString &purpose, int index,
                                bool isFinal);

    int id() const override;
    void setValue(const QString &value) override;
};

/// The base of the commands that add one item to a list of a behavior, or remove one.
///
/// An added item goes before the one at the index, or to the end where there is none, and a list
/// refuses a text that it has already. The command remembers where the item ended up, and undoing
/// removes it there; a removed item is put back with the text that it had. Once a step has failed,
/// all later ones do nothing.
template<typename T>
class PACKAGEMODEL_EXPORT BehaviorAddRemoveTaggedStringCommand : public BehaviorCommand {
public:
    BehaviorAddRemoveTaggedStringCommand(PackageInfoModel *model, const QString &behaviorPath,
                                         const QString &value, const T &tag, int index, bool isAdd);
    ~BehaviorAddRemoveTaggedStringCommand() override;

    void undo() override;
    void redo() override;

    /// Adds `value`. Returns the position of the first item equal to it, or -1 when the list
    /// refuses it.
    virtual int add(const QString &value, int index) = 0;
    /// Removes the item at `index` and returns its text. `ok`, which may be null, tells whether an
    /// item was removed.
    virtual QString remove(int index, bool *ok) = 0;

protected:
    const T &tag() const { return m_tag; }

private:
    void step(bool isAdd);

    QString m_value;
    T m_tag;
    int m_index;
    bool m_isAdd;
    bool m_succeeded = true;
};

extern template class BehaviorAddRemoveTaggedStringCommand<RobotLanguage>;
extern template class BehaviorAddRemoveTaggedStringCommand<QString>;

/// The base of the commands that add or remove an item of a list that stands under a language.
class PACKAGEMODEL_EXPORT BehaviorAddRemoveLocalizedStringCommand
    : public BehaviorAddRemoveTaggedStringCommand<RobotLanguage> {
public:
    BehaviorAddRemoveLocalizedStringCommand(PackageInfoModel *model, const QString &behaviorPath,
                                            const QString &value, const RobotLanguage &language,
                                            int index, bool isAdd);
    ~BehaviorAddRemoveLocalizedStringCommand() override;
};

/// The base of the commands that add or remove an item of a list that stands under a purpose.
class PACKAGEMODEL_EXPORT BehaviorAddRemovePurposedStringCommand
    : public BehaviorAddRemoveTaggedStringCommand<QString> {
public:
    BehaviorAddRemovePurposedStringCommand(PackageInfoModel *model, const QString &behaviorPath,
                                           const QString &value, const QString &purpose, int index,
                                           bool isAdd);
    ~BehaviorAddRemovePurposedStringCommand() override;
};

// A removal takes an empty text: it learns the text when it is done. The caller of addCommand() and
// removeCommand() owns what they return, until he pushes it on an undo stack.

/// Adds a tag to a behavior, or removes one.
class PACKAGEMODEL_EXPORT BehaviorAddRemoveTagCommand
    : public BehaviorAddRemoveLocalizedStringCommand {
public:
    BehaviorAddRemoveTagCommand(PackageInfoModel *model, const QString &behaviorPath,
                                const QString &value, const RobotLanguage &language, int index,
                                bool isAdd);

    [[nodiscard]] static BehaviorAddRemoveTagCommand *
    addCommand(PackageInfoModel *model, const QString &behaviorPath, const QString &value,
               const RobotLanguage &language, int index);
    [[nodiscard]] static BehaviorAddRemoveTagCommand *removeCommand(PackageInfoModel *model,
                                                                    const QString &behaviorPath,
                                                                    const RobotLanguage &language,
                                                                    int index);

    int add(const QString &value, int index) override;
    QString remove(int index, bool *ok) override;
};

/// Adds a trigger sentence to a behavior, or removes one.
class PACKAGEMODEL_EXPORT BehaviorAddRemoveTriggerSentenceCommand
    : public BehaviorAddRemoveLocalizedStringCommand {
public:
    BehaviorAddRemoveTriggerSentenceCommand(PackageInfoModel *model, const QString &behaviorPath,
                                            const QString &value, const RobotLanguage &language,
                                            int index, bool isAdd);

    [[nodiscard]] static BehaviorAddRemoveTriggerSentenceCommand *
    addCommand(PackageInfoModel *model, const QString &behaviorPath, const QString &value,
               const RobotLanguage &language, int index);
    [[nodiscard]] static BehaviorAddRemoveTriggerSentenceCommand *
    removeCommand(PackageInfoModel *model, const QString &behaviorPath,
                  const RobotLanguage &language, int index);

    int add(const QString &value, int index) override;
    QString remove(int index, bool *ok) override;
};

/// Adds a loading response to a behavior, or removes one.
class PACKAGEMODEL_EXPORT BehaviorAddRemoveLoadingResponseCommand
    : public BehaviorAddRemoveLocalizedStringCommand {
public:
    BehaviorAddRemoveLoadingResponseCommand(PackageInfoModel *model, const QString &behaviorPath,
                                            const QString &value, const RobotLanguage &language,
                                            int index, bool isAdd);

    [[nodiscard]] static BehaviorAddRemoveLoadingResponseCommand *
    addCommand(PackageInfoModel *model, const QString &behaviorPath, const QString &value,
               const RobotLanguage &language, int index);
    [[nodiscard]] static BehaviorAddRemoveLoadingResponseCommand *
    removeCommand(PackageInfoModel *model, const QString &behaviorPath,
                  const RobotLanguage &language, int index);

    int add(const QString &value, int index) override;
    QString remove(int index, bool *ok) override;
};

/// Adds a condition to a behavior, or removes one.
class PACKAGEMODEL_EXPORT BehaviorAddRemoveConditionCommand
    : public BehaviorAddRemovePurposedStringCommand {
public:
    BehaviorAddRemoveConditionCommand(PackageInfoModel *model, const QString &behaviorPath,
                                      const QString &value, const QString &purpose, int index,
                                      bool isAdd);

    [[nodiscard]] static BehaviorAddRemoveConditionCommand *
    addCommand(PackageInfoModel *model, const QString &behaviorPath, const QString &value,
               const QString &purpose, int index);
    [[nodiscard]] static BehaviorAddRemoveConditionCommand *
    removeCommand(PackageInfoModel *model, const QString &behaviorPath, const QString &purpose,
                  int index);

    int add(const QString &value, int index) override;
    QString remove(int index, bool *ok) override;
};

} // namespace Zel
