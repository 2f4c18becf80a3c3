#pragma once

#include <packagemodel/package_edits.h>
#include <packagemodel/set_command.h>

namespace Zel {

/// Applies edits of a package as one undo step.
///
/// A command that sets one text or version merges with later ones for the same field of the same
/// package, until one of them is final; a run that ends at its old text becomes obsolete, so that
/// the stack drops it. error() says why a step changed nothing.
///
/// ```
/// stack.push(new PackageEditCommand(&package, {edit}, tr("Set the author")));
/// ```
class PACKAGEMODEL_EXPORT PackageEditCommand : public PackageCommand, public MergeableCommand {
public:
    PackageEditCommand(PackageInfoModel *model, const PackageModel::Edits &edits,
                       const QString &text, bool isFinal = true);
    ~PackageEditCommand() override;

    void undo() override;
    void redo() override;
    int id() const override;
    bool mergeWith(const QUndoCommand *incoming) override;
    bool isFinalCommand() const override;

    /// Why the last step changed nothing; empty if it did its work.
    const QString &error() const { return m_error; }

private:
    void step(PackageModel::Edits &done, const PackageModel::Edits &edits);

    PackageModel::Edits m_edits;   // what redo() applies
    PackageModel::Edits m_inverse; // what undo() applies
    QString m_error;
    bool m_isFinal;
};

} // namespace Zel
