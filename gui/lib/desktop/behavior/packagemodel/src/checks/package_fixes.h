#pragma once

#include "package_checks.h"

#include <packagemodel/package_issues.h>

namespace Zel::PackageModel {

/// The ways to correct what was found, the most likely first.
QVector<Fix> fixesOf(const Finding &finding, const PackageInfoModel &package);

} // namespace Zel::PackageModel
