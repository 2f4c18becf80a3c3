#include "document.h"

#include "field_edits.h"

#include <packagemodel/package_edit_command.h>

#include <QScopedValueRollback>

#include <utility>

namespace Editor {

using Tano::FieldPath;
using Zel::PackageEditCommand;
using Zel::PackageInfoModel;
using Zel::PackageModel::Edit;
using Zel::PackageModel::Edits;

namespace {

// Notes when it is done or undone, which the stack does on its own.
class DocumentEdit : public PackageEditCommand {
public:
    DocumentEdit(bool &isStepping, PackageInfoModel *package, const Edits &edits,
                 const QString &text = {}, bool isFinal = true)
        : PackageEditCommand(package, edits, text, isFinal)
        , m_isStepping(isStepping) {}

    void undo() override {
        const QScopedValueRollback<bool> stepping(m_isStepping, true);
        PackageEditCommand::undo();
    }
    void redo() override {
        const QScopedValueRollback<bool> stepping(m_isStepping, true);
        PackageEditCommand::redo();
    }

private:
    bool &m_isStepping;
};

// The field that a command has set, whose path differs if it is a key.
FieldPath fieldAfter(const PackageEditCommand &command) {
    const Edits &inverse = command.inverse();
    const bool isField = !inverse.isEmpty() && !inverse.front().path.isEmpty();
    return (isField ? inverse : command.edits()).front().path;
}

// Whether the first edit of a run inserted the item.
bool beganAsItem(const PackageEditCommand *run) {
    return run && !run->edits().isEmpty() && run->edits().front().action == Edit::Action::Insert;
}

// The field changed by the last edit of a command; for an insertion into a list of texts, the
// inserted item.
FieldPath lastField(const PackageEditCommand &command) {
    const Edit &last = command.edits().back();
    const bool isItem = last.action == Edit::Action::Insert &&
                        !last.path.steps().back().selectors.empty() && !command.inverse().isEmpty();
    return isItem ? command.inverse().front().path : last.path;
}

} // namespace

QString Document::type(const FieldPath &field, const QString &text) {
    QString reason = textRefusal(package(), field, text);
    if (!reason.isEmpty()) {
        abandonRun(field);
        return reason;
    }
    Edit edit = typedEdit(package(), field, text);
    const bool isItem = edit.action == Edit::Action::Insert;
    if (isItem ? text.isEmpty() : Zel::PackageModel::value(package(), field) == edit.value)
        return {};
    if (text.isEmpty() && m_run == field && beganAsItem(commandAt(m_undoStack.index() - 1)))
        edit = {Edit::Action::Remove, field};
    auto *command = new DocumentEdit(m_isStepping, package(), {edit}, {}, false);
    if (m_run != field)
        command->startRun();
    const int before = m_undoStack.index();
    pushCommand(command);
    closeRun();
    // A run whose text was typed back is removed.
    if (const auto *run = commandAt(m_undoStack.index() - 1); run && m_undoStack.index() >= before)
        m_run = fieldAfter(*run);
    m_pause.start();
    return {};
}

QString Document::refusalOf(const Edits &edits) const {
    QString reason;
    for (const Edit &edit : edits) {
        reason = Zel::PackageModel::refusal(package(), edit);
        if (!reason.isEmpty())
            break;
    }
    if (reason.isEmpty() || edits.size() == 1)
        return reason;
    // An edit may depend on earlier ones.
    m_package->syncRecord();
    PackageInfoModel scratch(m_package->packageInfo());
    return Zel::PackageModel::apply(&scratch, edits).error;
}

void Document::edit(const Edits &edits, const QString &text) {
    if (edits.isEmpty())
        return;
    if (const QString reason = refusalOf(edits); !reason.isEmpty()) {
        Q_EMIT editRefused(reason);
        return;
    }
    auto *command = new DocumentEdit(m_isStepping, package(), edits, text);
    command->startRun();
    push(command);
}

void Document::push(QUndoCommand *command) {
    closeRun();
    pushCommand(command);
}

void Document::pushCommand(QUndoCommand *command) {
    const QScopedValueRollback<bool> pushing(m_isPushing, true);
    m_undoStack.push(command);
}

void Document::closeRun() {
    m_run = {};
    m_pause.stop();
}

void Document::abandonRun(const FieldPath &field) {
    if (m_run.isEmpty() || m_run != field)
        return;
    // A run and its inverse cancel each other out.
    if (const PackageEditCommand *run = commandAt(m_undoStack.index() - 1))
        pushCommand(new DocumentEdit(m_isStepping, package(), run->inverse(), {}, false));
    closeRun();
}

const PackageEditCommand *Document::commandAt(int index) const {
    return index < 0 ? nullptr
                     : dynamic_cast<const PackageEditCommand *>(m_undoStack.command(index));
}

FieldPath Document::changedField(int indexBefore) const {
    const bool isUndo = m_stackIndex < indexBefore;
    const int index = isUndo ? m_stackIndex : m_stackIndex - 1;
    const PackageEditCommand *command = commandAt(index);
    if (!command) // no edit changes the icon
        return m_undoStack.command(index) ? FieldPath().field("icon") : FieldPath();
    // What leads away from the present state has the paths of the present state. Edits that follow
    // from another one, such as that of a language, are not at this end.
    const Edits &edits = isUndo ? command->edits() : command->inverse();
    if (edits.isEmpty())
        return {};
    return isUndo ? lastField(*command) : edits.front().path;
}

Edits Document::pendingEdits() const {
    const int clean = m_undoStack.cleanIndex();
    if (!isModified())
        return {};
    if (clean < 0 || !m_isReplayable) {
        m_package->syncRecord();
        return {{Edit::Action::Set, {}, m_package->packageInfo()}};
    }
    Edits edits;
    for (int i = clean; i < m_undoStack.index(); ++i) {
        if (const PackageEditCommand *command = commandAt(i))
            edits += command->edits();
    }
    for (int i = clean - 1; i >= m_undoStack.index(); --i) {
        if (const PackageEditCommand *command = commandAt(i))
            edits += command->inverse();
    }
    return edits;
}

void Document::finishEdit() {
    if (m_isReplacing)
        return;
    const int before = std::exchange(m_stackIndex, m_undoStack.index());
    const bool isStep = !m_isPushing && before != m_stackIndex;
    if (isStep)
        closeRun();
    const QScopedValueRollback<bool> stepping(m_isStepping, isStep);
    m_coverages.reset();
    updateIssues();
    Q_EMIT edited();
    if (const auto field = isStep ? changedField(before) : FieldPath(); !field.isEmpty())
        Q_EMIT fieldChanged(Zel::fromUtf8(field.toString()));
}

} // namespace Editor
