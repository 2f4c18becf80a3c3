#pragma once

#include <packagemodel/package_issues.h>

#include <string>

namespace ZelPackage {

/// A manifest after fixing.
struct FixedManifest {
    std::string content;           ///< empty if nothing was fixed, or on error
    Tano::PackageInfo record = {}; ///< the same as a record
    QString error = {};            ///< the reason if it cannot be saved
};

/// Fixes a package without changing the spelling of anything else. Fixing the result again changes
/// nothing.
FixedManifest fixedManifest(const Tano::PackageInfo &record, Zel::PackageModel::FixChoice choice,
                            const Zel::PackageModel::IssueOptions &options);

} // namespace ZelPackage
