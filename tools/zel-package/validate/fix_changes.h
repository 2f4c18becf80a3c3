#pragma once

#include "console/text_diff.h"
#include "manifest_finding.h"

#include <optional>

namespace ZelPackage {

/// Computes the lines that fixes change in a manifest.
///
/// Each fix is applied and saved separately, which takes time in proportion to the manifest.
/// Returns no changes for manifests longer than longestManifest or not in canonical form, whose
/// other lines would change too, nor after `budget` bytes were spent on earlier fixes.
class FixChanges {
public:
    static constexpr std::size_t longestManifest = std::size_t(1) << 20;
    static constexpr std::size_t budget = longestManifest * 32;

    /// `manifest` must have record and content, and outlive this object.
    explicit FixChanges(const CheckedManifest &manifest)
        : m_manifest(manifest) {}

    /// Empty if there are none.
    std::vector<LineChange> of(const Zel::PackageModel::Fix &fix);

private:
    const CheckedManifest &m_manifest;
    std::optional<bool> m_isCanonical;
    std::size_t m_spent = 0;
};

} // namespace ZelPackage
