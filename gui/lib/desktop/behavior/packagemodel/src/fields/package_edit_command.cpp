#include <packagemodel/package_edit_command.h>

#include "../command_ids.h"

namespace Zel {
namespace {

using PackageModel::Edit;

// Whether the edits set a single text or version, as typing does.
bool isTyped(const PackageModel::Edits &edits, Edit::Action action = Edit::Action::Set) {
    return edits.size() == 1 && edits.front().action == action && edits.front().value &&
           (std::holds_alternative<QString>(*edits.front().value) ||
            std::holds_alternative<SoftwareVersion>(*edits.front().value));
}

// Whether the edits may start a typed run; inserting an item may, too.
bool beginRun(const PackageModel::Edits &edits) {
    return isTyped(edits) || isTyped(edits, Edit::Action::Insert);
}

} // namespace

PackageEditCommand::PackageEditCommand(PackageInfoModel *model, const PackageModel::Edits &edits,
                                       const QString &text, bool isFinal)
    : PackageCommand(model)
    , m_edits(edits)
    , m_isFinal(isFinal) {
    setText(text.isEmpty() ? PackageModel::label(edits) : text);
}

PackageEditCommand::~PackageEditCommand() = default;

void PackageEditCommand::undo() {
    if (!m_inverse.isEmpty())
        step(m_edits, m_inverse);
}

void PackageEditCommand::redo() {
    m_inverse.clear(); // a failed step must not be undone
    step(m_inverse, m_edits);
}

void PackageEditCommand::step(PackageModel::Edits &done, const PackageModel::Edits &edits) {
    PackageModel::Applied applied = PackageModel::apply(model(), edits);
    m_error = applied.error;
    if (m_error.isEmpty())
        done = applied.inverse;
}

int PackageEditCommand::id() const {
    return CommandId::packageEdits;
}

bool PackageEditCommand::mergeWith(const QUndoCommand *incoming) {
    return mergeIf<PackageEditCommand>(incoming, [this](const PackageEditCommand &newer) {
        if (m_isFinal || newer.m_startsRun || !model() || newer.model() != model() ||
            !beginRun(m_edits) || m_inverse.size() != 1 || newer.m_inverse.size() != 1)
            return false;
        if (newer.m_edits == m_inverse) {
            setObsolete(true);
            return true;
        }
        // An inverse that restores the whole package needs no update.
        const bool isWhole = m_inverse.front().path.isEmpty();
        if (!isTyped(newer.m_edits) ||
            newer.m_edits.front().path != (isWhole ? m_edits : m_inverse).front().path)
            return false;
        m_edits.front().value = newer.m_edits.front().value;
        if (!isWhole)
            m_inverse.front().path = newer.m_inverse.front().path;
        m_isFinal = newer.m_isFinal;
        return true;
    });
}

bool PackageEditCommand::isFinalCommand() const {
    return MergeableCommand::isFinalCommand() || m_isFinal;
}

} // namespace Zel
