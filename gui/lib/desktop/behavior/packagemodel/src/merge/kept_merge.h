#pragma once

#include "field_merge.h"

namespace Zel::PackageModel {

/// Applies their added and removed comments, and their added or changed elements and attributes
/// beyond the format, to the merged record.
void mergeKeptContent(const Sides<Tano::PackageInfo> &records, FieldMerge &merge,
                      Tano::PackageInfo &merged);

/// The record with a comment for each conflict.
Tano::PackageInfo withConflictComments(const Tano::PackageInfo &record,
                                       const QVector<MergeConflict> &conflicts);

} // namespace Zel::PackageModel
