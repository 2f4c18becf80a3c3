#pragma once

#include <packagemodel/package_info_model.h>

namespace Zel::PackageModel {

/// Makes a package equal to a record: what differs is edited through the slots, then comments,
/// unknown content and the spelling of versions follow without notification.
void replacePackage(PackageInfoModel &package, const Tano::PackageInfo &record);

} // namespace Zel::PackageModel
