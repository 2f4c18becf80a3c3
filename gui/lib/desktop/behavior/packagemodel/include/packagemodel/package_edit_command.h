#pragma once

#include <packagemodel/package_edits.h>
#include <packagemodel/set_command.h>

namespace Zel {

/// Applies edits of a package as one undo step.
///
/// A command that sets or inserts one text or version merges with later ones that set the same
/// field of the same package, until one of them is final or starts another run. A field that names
/// its entry stays the same field when the entry is renamed. A run that ends at its old text, or
/// that is followed by a command with its inverse(), becomes obsolete, so that the stack drops it.
/// error() says why a step changed nothing.
///
/// ```
/// stack.push(new PackageEditCommand(&package, {edit}));
/// ```
class PACKAGEMODEL_EXPORT PackageEditCommand : public PackageCommand, public MergeableCommand {
public:
    /// Without a text, the edits in words are the text of the step.
    PackageEditCommand(PackageInfoModel *model, const PackageModel::Edits &edits,
                       const QString &text = {}, bool isFinal = true);
    ~PackageEditCommand() override;

    void undo() override;
    void redo() override;
    int id() const override;
    bool mergeWith(const QUndoCommand *incoming) override;
    bool isFinalCommand() const override;

    /// Keeps the command from merging into an earlier one. To be called before it is pushed.
    void startRun() { m_startsRun = true; }

    /// What redo() applies.
    const PackageModel::Edits &edits() const { return m_edits; }
    /// What undo() applies; empty before the first redo() and after one that failed.
    const PackageModel::Edits &inverse() const { return m_inverse; }

    /// Why the last step changed nothing; empty if it did its work.
    const QString &error() const { return m_error; }

private:
    void step(PackageModel::Edits &done, const PackageModel::Edits &edits);

    PackageModel::Edits m_edits;
    PackageModel::Edits m_inverse;
    QString m_error;
    bool m_isFinal;
    bool m_startsRun = false;
};

} // namespace Zel
