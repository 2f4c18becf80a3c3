#pragma once

#include "list_merge.h"

#include <packagemodel/package_edits.h>
#include <packagemodel/package_merge.h>

#include <QJsonObject>
#include <QJsonValue>

#include <map>
#include <vector>

namespace Zel::PackageModel {

/// The result of merging fields.
struct FieldMerge {
    /// An entry adopted from theirs, including comments and unknown content.
    struct Adopted {
        int index; ///< in the merged list
        FieldValue record;
    };

    Edits edits; ///< to apply to ours
    QVector<MergeConflict> conflicts;
    std::vector<Adopted> adopted = {}; ///< to copy after the edits
    /// The merged paths of items whose position differs from theirs, by their path in a merged
    /// parent.
    std::map<Tano::FieldPath, Tano::FieldPath> places = {};

    void addConflict(const Tano::FieldPath &path, const Sides<QJsonValue> &values);
    /// The merged path of what has the given path in theirs.
    Tano::FieldPath placeOf(const Tano::FieldPath &pathInTheirs) const;
};

/// The fields of an entry as a manifest holds them: without empty names and descriptions.
QJsonObject savedFields(QJsonObject owner);

/// Merges a field. Texts and flags are cells, objects hold cells or lists by key, arrays are lists
/// of texts or requirements; an absent value is undefined.
void mergeValue(const Sides<QJsonValue> &values, const Tano::FieldPath &path, FieldMerge &merge);

/// Merges the fields of an entry, given as members of objects.
void mergeFields(const Sides<QJsonObject> &owners, const Tano::FieldPath &path, FieldMerge &merge);

} // namespace Zel::PackageModel
