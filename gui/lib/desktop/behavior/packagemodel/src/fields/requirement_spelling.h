#pragma once

#include <packagemodel/package_edits.h>

namespace Zel::PackageModel {

/// Whether an edit leads into a list of requirements whose versions a model writes differently:
/// "1,2" or "x", which it treats as no version, or "01".
bool hasOddVersions(const Tano::PackageInfo &record, const Tano::FieldPath &path);

/// Restores the spelling of versions that an edit did not concern, after the slots have rewritten
/// all requirements.
void restoreSpelling(PackageInfoModel &package, const Edit &edit, const Tano::PackageInfo &before);

} // namespace Zel::PackageModel
