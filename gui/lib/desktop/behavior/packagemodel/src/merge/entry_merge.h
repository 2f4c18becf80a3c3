#pragma once

#include "field_merge.h"

#include "../fields/field_row.h"

namespace Zel::PackageModel {

/// Merges the behaviors, dialogs or services of three packages, which are not changed.
void mergeEntries(const FieldRow<PackageInfoModel> &row, const Sides<PackageInfoModel *> &packages,
                  FieldMerge &merge);

} // namespace Zel::PackageModel
