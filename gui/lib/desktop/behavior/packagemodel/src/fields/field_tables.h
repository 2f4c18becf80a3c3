#pragma once

#include "field_row.h"

namespace Zel::PackageModel {

/// The fields of a package, in manifest order, with those of its entries below. Listing, reading
/// and editing fields derive from this table.
const FieldTable<PackageInfoModel> &packageFields();

} // namespace Zel::PackageModel
