#pragma once

#include "package_checks.h"

#include <packagemodel/package_issues.h>

#include <optional>

namespace Zel::PackageModel {

/// Makes fixes of what was found in a package, as long as the package is unchanged.
class FixMaker {
public:
    explicit FixMaker(const PackageInfoModel &package)
        : m_package(package) {}

    /// The ways to correct it, the most likely first.
    QVector<Fix> fixesOf(const Finding &finding);

private:
    // Those that replace the package are made once for all findings of a rule.
    const QVector<Fix> &renames();
    const QVector<Fix> &resolutions();

    const PackageInfoModel &m_package;
    std::optional<QVector<Fix>> m_renames;
    std::optional<QVector<Fix>> m_resolutions;
};

} // namespace Zel::PackageModel
