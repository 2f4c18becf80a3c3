#pragma once

#include <packagemodel/package_info_model.h>

namespace Zel::PackageModel {

/// Makes a package equal to a record: edits differing fields through the slots, then copies
/// comments, unknown content and the spelling of versions without notification.
void replacePackage(PackageInfoModel &package, const Tano::PackageInfo &record);

} // namespace Zel::PackageModel
