#pragma once

#include "package_checks.h"

#include <packagemodel/package_issues.h>

#include <optional>

namespace Zel::PackageModel {

/// Creates fixes for findings. The package must not change during its lifetime.
class FixMaker {
public:
    explicit FixMaker(const PackageInfoModel &package)
        : m_package(package) {}

    /// The ways to fix it, most likely first.
    QVector<Fix> fixesOf(const Finding &finding);

private:
    // Fixes that replace the package are created once for all findings of a rule.
    const QVector<Fix> &renames();
    const QVector<Fix> &resolutions();

    const PackageInfoModel &m_package;
    std::optional<QVector<Fix>> m_renames;
    std::optional<QVector<Fix>> m_resolutions;
};

} // namespace Zel::PackageModel
