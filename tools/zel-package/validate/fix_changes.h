#pragma once

#include "console/text_diff.h"
#include "manifest_finding.h"

#include <optional>

namespace ZelPackage {

/// The lines that fixes change in a manifest.
///
/// Each fix is made and saved on its own, which takes time in proportion to the manifest. There are
/// no changes for manifests that are longer than longestManifest, or in which fixes would change
/// other lines too because they are not in the canonical form; nor for the further fixes of a
/// manifest once those before them took `budget` bytes.
class FixChanges {
public:
    static constexpr std::size_t longestManifest = std::size_t(1) << 20;
    static constexpr std::size_t budget = longestManifest * 32;

    /// `manifest` has its record and content, and must outlive this.
    explicit FixChanges(const CheckedManifest &manifest)
        : m_manifest(manifest) {}

    /// Empty if there are none to show.
    std::vector<LineChange> of(const Zel::PackageModel::Fix &fix);

private:
    const CheckedManifest &m_manifest;
    std::optional<bool> m_isCanonical;
    std::size_t m_spent = 0;
};

} // namespace ZelPackage
