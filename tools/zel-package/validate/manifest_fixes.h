#pragma once

#include <packagemodel/package_issues.h>

#include <optional>
#include <string>

namespace ZelPackage {

/// A manifest after its fixes.
struct FixedManifest {
    std::string content;           ///< empty if there was nothing to fix, or after an error
    Tano::PackageInfo record = {}; ///< the same
    QString error = {};            ///< why it cannot be saved
};

/// Fixes a package; what no fix concerns is left as it was written. Fixing the result again changes
/// nothing.
FixedManifest fixedManifest(const Tano::PackageInfo &record, Zel::PackageModel::FixChoice choice,
                            const Zel::PackageModel::IssueOptions &options);

} // namespace ZelPackage
