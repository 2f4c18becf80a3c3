#pragma once

#include <tano/package_info.h>

#include <functional>

namespace Zel {

class PackageInfoModel;

namespace PackageModel {

/// How a comment that turns off rules begins, after white space.
constexpr const char *ignoreMark = "zel-package:";

/// Whether a behavior has comments that may turn off rules.
bool hasIgnoreComments(const Tano::BehaviorInfo &behavior);

/// Whether a behavior has elements or attributes beyond the format.
bool hasUnknownContent(const Tano::BehaviorInfo &behavior);

/// The record as syncRecord() would make it.
Tano::PackageInfo syncedRecord(const PackageInfoModel &package);

/// The record without the content of some behaviors: of these, only the path is left.
Tano::PackageInfo
withContentOf(const Tano::PackageInfo &record,
              const std::function<bool(const Tano::BehaviorInfo &behavior)> &isWanted);

/// What comments that turn off rules depend on: the record with the same placeholder for all texts
/// of the package, and without the content of behaviors that have no such comments.
Tano::PackageInfo outlineOf(const Tano::PackageInfo &record);

/// The outline of the package itself, without behaviors.
Tano::PackageInfo ownOutlineOf(const PackageInfoModel &package);

} // namespace PackageModel
} // namespace Zel
