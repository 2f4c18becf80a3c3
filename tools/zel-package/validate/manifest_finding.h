#pragma once

#include <packagemodel/package_issues.h>

#include <tano/manifest_reader.h>

#include <QString>

#include <string>
#include <vector>

namespace ZelPackage {

/// One thing that is wrong with a manifest.
struct ManifestFinding {
    Tano::SourcePosition position;
    QString ruleId;
    Zel::PackageModel::Severity severity;
    QString field; ///< as a path, for example "names[fr_FR]"; empty for the manifest as a whole
    QString text;  ///< plain
    QVector<Zel::PackageModel::Fix> fixes = {}; ///< if the writer needs them
};

/// A manifest and its findings.
struct CheckedManifest {
    QString file; ///< as it was given; the name of one from standard input
    Tano::PackageInfo record = {};
    std::string content = {};                   ///< the bytes, if the writer needs them
    std::vector<ManifestFinding> findings = {}; ///< by line and column
};

} // namespace ZelPackage
