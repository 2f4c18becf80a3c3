#pragma once

#include <tano/package_info.h>

#include <functional>
#include <string>

namespace Zel {

class PackageInfoModel;

namespace PackageModel {

/// How a comment that turns off rules begins, after white space.
constexpr const char *ignoreMark = "zel-package:";

/// Whether a behavior has comments that may turn off rules.
bool hasIgnoreComments(const Tano::BehaviorInfo &behavior);

/// The record as syncRecord() would make it.
Tano::PackageInfo syncedRecord(const PackageInfoModel &package);

/// The record without the content of some behaviors: of these, only the path is left.
Tano::PackageInfo
withContentOf(const Tano::PackageInfo &record,
              const std::function<bool(const Tano::BehaviorInfo &behavior)> &isWanted);

/// The record without behaviors, and with the same placeholder for all texts of the package.
/// Comments depend on whether such a text exists, but not on what it says.
Tano::PackageInfo ownOutline(const Tano::PackageInfo &record);

} // namespace PackageModel
} // namespace Zel
