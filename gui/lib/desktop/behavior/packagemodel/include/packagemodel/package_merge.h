#pragma once

#include <packagemodel/packagemodel_export.h>

#include <tano/field_path.h>
#include <tano/package_info.h>

#include <QString>
#include <QVector>

namespace Zel::PackageModel {

/// A field that both sides of a merge changed differently.
struct MergeConflict {
    /// The field in the merged package. For an item that `ours` removed, its former place or,
    /// without a key, the list.
    Tano::FieldPath path;
    /// @{
    /// The value: a text, or JSON for an entry, a requirement or a flag. Null if a side has none.
    QString base;
    QString ours;
    QString theirs;
    /// @}
};

/// The outcome of a merge.
struct Merged {
    Tano::PackageInfo record;         ///< with the changes of both sides
    QVector<MergeConflict> conflicts; ///< fields that need a decision
    QString error; ///< why the merge failed, in one sentence; the record is then `ours`
};

/// Merges the changes of two packages since a common base, field by field.
///
/// - A field that one side changed gets its value; equal changes of both sides count once.
/// - Lists merge by item: items that either side removed or added are removed or added, in the
///   order of `ours` except for items that only `theirs` moved. An item replaced in place is a
///   changed item.
/// - Behaviors, dialogs and services are matched by their keys, renamed ones by their content.
/// - If both sides changed a field differently, or one removed it and the other changed it, the
///   merge keeps `ours` and adds a comment with both values before the field. The rule
///   merge-conflict reports such comments until they are removed.
///
/// Comments that `theirs` added or removed are added or removed. The merge keeps unknown elements
/// and attributes of `ours` and adds those that `theirs` added. Such a node is a conflict if both
/// sides changed or added it differently, or if the merged package lacks its parent.
///
/// ```cpp
/// const Merged merged = merge(base, ours, theirs);
/// for (const MergeConflict &conflict : merged.conflicts)
///     showConflict(label(conflict.path), conflict.ours, conflict.theirs);
/// ```
PACKAGEMODEL_EXPORT Merged merge(const Tano::PackageInfo &base, const Tano::PackageInfo &ours,
                                 const Tano::PackageInfo &theirs);

} // namespace Zel::PackageModel
