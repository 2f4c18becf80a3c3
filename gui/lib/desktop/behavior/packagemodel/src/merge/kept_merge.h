#pragma once

#include "field_merge.h"

namespace Zel::PackageModel {

/// Adds to and removes from the merged record the comments that theirs added and removed, and the
/// elements and attributes beyond the format that theirs added or changed.
void mergeKeptContent(const Sides<Tano::PackageInfo> &records, FieldMerge &merge,
                      Tano::PackageInfo &merged);

/// The record with a comment for each conflict.
Tano::PackageInfo withConflictComments(const Tano::PackageInfo &record,
                                       const QVector<MergeConflict> &conflicts);

} // namespace Zel::PackageModel
