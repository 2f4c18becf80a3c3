#pragma once

#include <packagemodel/package_issues.h>

#include <tano/manifest_reader.h>

#include <QString>

#include <string>
#include <vector>

namespace ZelPackage {

/// A fault in a manifest.
struct ManifestFinding {
    Tano::SourcePosition position;
    QString ruleId;
    Zel::PackageModel::Severity severity;
    QString field; ///< a path such as "names[fr_FR]"; empty for the whole manifest
    QString text;  ///< without markup
    QVector<Zel::PackageModel::Fix> fixes = {}; ///< if the writer needs them
};

/// A manifest and its findings.
struct CheckedManifest {
    QString file; ///< as given by the user; a substitute for standard input
    Tano::PackageInfo record = {};
    std::string content = {};                   ///< the bytes, if needed by the writer
    std::vector<ManifestFinding> findings = {}; ///< sorted by line and column
};

} // namespace ZelPackage
