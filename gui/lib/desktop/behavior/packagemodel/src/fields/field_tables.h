#pragma once

#include "field_row.h"

namespace Zel::PackageModel {

/// The fields of a package, in the order of its manifest. The one table that listing, reading and
/// editing fields is derived from; those of its entries hang below it.
const FieldTable<PackageInfoModel> &packageFields();

} // namespace Zel::PackageModel
