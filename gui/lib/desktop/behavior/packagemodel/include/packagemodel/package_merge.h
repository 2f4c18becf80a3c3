#pragma once

#include <packagemodel/packagemodel_export.h>

#include <tano/field_path.h>
#include <tano/package_info.h>

#include <QString>
#include <QVector>

namespace Zel::PackageModel {

/// A field that both sides of a merge changed, each in its own way.
struct MergeConflict {
    /// The field in the merged package. Of an item that `ours` removed: where it would be, for one
    /// without a key the list.
    Tano::FieldPath path;
    // The values: a text, or JSON for an entry, a requirement or a flag. Null where a side has
    // none.
    QString base;
    QString ours;
    QString theirs;
};

/// The outcome of a merge.
struct Merged {
    Tano::PackageInfo record;         ///< with the changes of both sides
    QVector<MergeConflict> conflicts; ///< what needs a decision
    QString error; ///< why there is no merge, in one sentence; the record is that of `ours` then
};

/// Merges the changes of two sides that start from the same base, field by field.
///
/// - A field that one side changed gets its value; equal changes count once.
/// - Lists merge by item: those that either side removed go, those that either side added come, in
///   the order of `ours` except for items that only `theirs` moved. An item that another one
///   replaces in its place is a changed item.
/// - Behaviors, dialogs and services are matched by their keys, renamed ones by their content.
/// - Where both sides changed a field differently, or one removed what the other changed, `ours`
///   stays, and a comment before the field holds both values, which the rule merge-conflict reports
///   until it is removed.
///
/// Comments that `theirs` added or removed are added or removed. Unknown elements and attributes of
/// `ours` stay, and those that `theirs` added come along; one that both sides changed or added with
/// different content is a conflict, as is one whose element the merged package does not have.
///
/// ```
/// const Merged merged = merge(base, ours, theirs);
/// for (const MergeConflict &conflict : merged.conflicts)
///     showConflict(label(conflict.path), conflict.ours, conflict.theirs);
/// ```
PACKAGEMODEL_EXPORT Merged merge(const Tano::PackageInfo &base, const Tano::PackageInfo &ours,
                                 const Tano::PackageInfo &theirs);

} // namespace Zel::PackageModel
