#pragma once

#include <packagemodel/package_edits.h>

namespace Zel::PackageModel {

/// Whether an edit leads into a list of requirements with versions that a model writes in another
/// way: "1,2" or "x", for which it has no version, or "01".
bool hasOddVersions(const Tano::PackageInfo &record, const Tano::FieldPath &path);

/// Gives the versions of requirements that an edit did not concern the spelling of `before` back,
/// after the slots have written the requirements as a whole.
void restoreSpelling(PackageInfoModel &package, const Edit &edit, const Tano::PackageInfo &before);

} // namespace Zel::PackageModel
