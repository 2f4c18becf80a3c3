#pragma once

#include <packagemodel/set_command.h>
#include <packagemodel/supported_languages_command.h>

#include <tano/behavior_info.h>
#include <tano/dialog_info.h>
#include <tano/package_service.h>
#include <zel/language.h>

#include <functional>
#include <vector>

// The undo commands that the library leaves to an editor, built on its bases.

namespace Editor {

/// Where a text stands that no command of the library sets.
struct TextSlot {
    QString key; ///< tells the slots of a package apart
    std::function<QString(const Zel::PackageInfoModel &package)> read;
    std::function<void(Zel::PackageInfoModel &package, const QString &text)> write;
};

/// Sets the text of a slot. Merges with later ones for the same slot of the same package.
class TextSlotCommand : public Zel::PackageCommand, public Zel::MergeableCommand {
public:
    TextSlotCommand(Zel::PackageInfoModel *model, TextSlot slot, const QString &newText,
                    const QString &commandText, bool isFinal);

    void undo() override;
    void redo() override;
    int id() const override;
    bool mergeWith(const QUndoCommand *incoming) override;
    bool isFinalCommand() const override;

private:
    TextSlot m_slot;
    Zel::TextEdit m_edit;
};

/// Sets the version of the package, as it is typed.
TextSlotCommand *newVersionCommand(Zel::PackageInfoModel *model, const QString &version,
                                   bool isFinal);

// Languages. Taking back what these did restores the order of the languages, and the topic files of
// the dialogs, which go with a supported language.

/// Adds a supported language where the package lacks it, and removes it where the package has it.
class SupportedLanguageCommand : public Zel::PackageLanguageCommand {
public:
    SupportedLanguageCommand(Zel::PackageInfoModel *model, const Zel::RobotLanguage &language);
    void switchLanguage() override;

private:
    struct State {
        Zel::RobotLanguages supported;
        Zel::RobotLanguages described;
        std::vector<Zel::Language::LocalizedStrings> topics; // of each dialog
    };
    State state() const;
    void restore(const State &state);

    State m_before;
    bool m_isDone = false;
};

/// Adds a description language where the package lacks it, and removes it where the package has it.
class DescriptionLanguageCommand : public Zel::PackageLanguageCommand {
public:
    DescriptionLanguageCommand(Zel::PackageInfoModel *model, const Zel::RobotLanguage &language);
    void switchLanguage() override;

private:
    Zel::RobotLanguages m_before;
    bool m_isDone = false;
};

// Entries. Each list of entries knows how to read, insert and remove one; taking back a removal
// puts the entry where it was.

/// Adds an entry to a list of the package, or removes one.
template<typename List>
class EntryCommand : public Zel::PackageCommand {
public:
    using Record = typename List::Record;

    /// Adds an entry at the end.
    EntryCommand(Zel::PackageInfoModel *model, const Record &record, const QString &commandText)
        : PackageCommand(model)
        , m_record(record)
        , m_index(List::count(*model))
        , m_isAdd(true) {
        setText(commandText);
    }
    /// Removes the entry at `index`, which is in the list.
    EntryCommand(Zel::PackageInfoModel *model, int index, const QString &commandText)
        : PackageCommand(model)
        , m_record(List::at(*model, index))
        , m_index(index)
        , m_isAdd(false) {
        setText(commandText);
    }

    void undo() override { m_isAdd ? remove() : insert(); }
    void redo() override { m_isAdd ? insert() : remove(); }

private:
    void remove() {
        m_record = List::at(*model(), m_index);
        List::remove(*model(), m_index);
    }
    // The package takes new entries at the end only, so those behind go and come again.
    void insert() {
        std::vector<Record> behind;
        for (int i = List::count(*model()) - 1; i >= m_index; --i) {
            behind.push_back(List::at(*model(), i));
            List::remove(*model(), i);
        }
        List::append(*model(), m_record);
        for (auto record = behind.rbegin(); record != behind.rend(); ++record)
            List::append(*model(), *record);
    }

    Record m_record;
    int m_index;
    bool m_isAdd;
};

QUndoCommand *newAddBehaviorCommand(Zel::PackageInfoModel *model, const QString &path);
QUndoCommand *newRemoveBehaviorCommand(Zel::PackageInfoModel *model, int index);
QUndoCommand *newAddDialogCommand(Zel::PackageInfoModel *model, const QString &topicName);
QUndoCommand *newRemoveDialogCommand(Zel::PackageInfoModel *model, int index);
QUndoCommand *newAddServiceCommand(Zel::PackageInfoModel *model, const QString &name);
QUndoCommand *newRemoveServiceCommand(Zel::PackageInfoModel *model, int index);
QUndoCommand *newAddRobotRequirementCommand(Zel::PackageInfoModel *model);
QUndoCommand *newRemoveRobotRequirementCommand(Zel::PackageInfoModel *model, int index);
QUndoCommand *newAddBrioRequirementCommand(Zel::PackageInfoModel *model);
QUndoCommand *newRemoveBrioRequirementCommand(Zel::PackageInfoModel *model, int index);

// Fields of entries, found by their index.

enum class ServiceField { Name, ExecStart };
QUndoCommand *newServiceFieldCommand(Zel::PackageInfoModel *model, int index, ServiceField field,
                                     const QString &text, bool isFinal);

/// Switches whether a service starts with the robot.
class ServiceAutoRunCommand : public Zel::PackageCommand {
public:
    ServiceAutoRunCommand(Zel::PackageInfoModel *model, int index);
    void undo() override;
    void redo() override;

private:
    int m_index;
};

/// One field of a requirement, as a text; a text that is no version clears a bound.
struct RequirementField {
    const char *list; ///< as in the paths of issues
    const char *name; ///< likewise
    std::function<QString(const Zel::PackageInfoModel &package, int index)> read;
    std::function<void(Zel::PackageInfoModel &package, int index, const QString &text)> write;
};
/// The fields of a robot requirement: the model, then the bounds.
const std::vector<RequirementField> &robotRequirementFields();
/// The fields of a Brio requirement.
const std::vector<RequirementField> &brioRequirementFields();

QUndoCommand *newRequirementFieldCommand(Zel::PackageInfoModel *model,
                                         const RequirementField &field, int index,
                                         const QString &text, bool isFinal);

} // namespace Editor
