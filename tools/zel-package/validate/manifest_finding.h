#pragma once

#include <packagemodel/package_issues.h>

#include <tano/manifest_reader.h>

#include <QString>

namespace ZelPackage {

/// Something that is wrong with a manifest.
struct ManifestFinding {
    QString file; ///< as it was given
    Tano::SourcePosition position;
    QString ruleId;
    Zel::PackageModel::Severity severity;
    QString field; ///< as a path, for example "names[fr_FR]"; empty for the manifest as a whole
    QString text;  ///< plain
};

} // namespace ZelPackage
