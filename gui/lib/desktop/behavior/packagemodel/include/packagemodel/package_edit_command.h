#pragma once

#include <packagemodel/package_edits.h>
#include <packagemodel/set_command.h>

namespace Zel {

/// Applies edits of a package as one undo step.
///
/// A command that sets or inserts one text or version merges with later ones that set the same
/// field of the same package, until one of them is final or starts another run. Renaming an entry
/// does not end a run. If a run ends at its old text, or is followed by a command with its
/// inverse(), it becomes obsolete and the stack drops it.
///
/// ```cpp
/// const auto path = *Tano::FieldPath::parse("names[fr_FR]");
/// const PackageModel::Edit edit{PackageModel::Edit::Action::Set, path, QStringLiteral("Thé")};
/// stack.push(new PackageEditCommand(&package, {edit}));
/// ```
///
/// If an edit is refused, the step changes nothing and error() returns the reason.
class PACKAGEMODEL_EXPORT PackageEditCommand : public PackageCommand, public MergeableCommand {
public:
    /// Without `text`, the step is named after its edits, see PackageModel::label(). `isFinal`
    /// keeps later commands from merging into this one.
    PackageEditCommand(PackageInfoModel *model, const PackageModel::Edits &edits,
                       const QString &text = {}, bool isFinal = true);
    ~PackageEditCommand() override;

    void undo() override;
    void redo() override;
    /// The same for all commands of this class.
    int id() const override;
    /// Merges a later command for the same field.
    bool mergeWith(const QUndoCommand *incoming) override;
    bool isFinalCommand() const override;

    /// Keeps the command from merging into an earlier one. Call it before pushing the command.
    void startRun() { m_startsRun = true; }

    /// The edits for redo().
    const PackageModel::Edits &edits() const { return m_edits; }
    /// The edits for undo(); empty before the first redo() and after a failed one.
    const PackageModel::Edits &inverse() const { return m_inverse; }

    /// Why the last step changed nothing; empty if it succeeded.
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
