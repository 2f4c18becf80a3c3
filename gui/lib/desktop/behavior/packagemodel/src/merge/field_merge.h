#pragma once

#include "list_merge.h"

#include <packagemodel/package_edits.h>
#include <packagemodel/package_merge.h>

#include <QJsonObject>
#include <QJsonValue>

#include <map>
#include <vector>

namespace Zel::PackageModel {

/// What a merge makes of the fields that it has compared.
struct FieldMerge {
    /// An entry of the merged package that is that of theirs, comments and unknown content
    /// included.
    struct Adopted {
        int index; ///< in the merged list
        FieldValue record;
    };

    Edits edits; ///< of ours
    QVector<MergeConflict> conflicts;
    std::vector<Adopted> adopted = {}; ///< to be put in place when the edits are done
    /// The items of theirs that have another place, by their paths in a merged parent.
    std::map<Tano::FieldPath, Tano::FieldPath> places = {};

    void addConflict(const Tano::FieldPath &path, const Sides<QJsonValue> &values);
    /// The path in the merged package of what has that path in theirs.
    Tano::FieldPath placeOf(const Tano::FieldPath &pathInTheirs) const;
};

/// The fields of an entry as a manifest holds them: an empty name or description is none.
QJsonObject savedFields(QJsonObject owner);

/// Merges a field. A text or a flag is a cell, an object holds cells or lists by key, and an array
/// is a list of texts or requirements; an absent value is undefined.
void mergeValue(const Sides<QJsonValue> &values, const Tano::FieldPath &path, FieldMerge &merge);

/// Merges the fields of an entry, which are the members of the objects.
void mergeFields(const Sides<QJsonObject> &owners, const Tano::FieldPath &path, FieldMerge &merge);

} // namespace Zel::PackageModel
