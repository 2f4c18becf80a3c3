#pragma once

#include <packagemodel/package_issues.h>

#include <tano/manifest_reader.h>

#include <QString>

#include <memory>

namespace Zel::PackageModel {

/// "error", "warning" or "note", in every language.
PACKAGEMODEL_EXPORT QLatin1String severityWord(Severity severity);

/// Finds the positions of issues in a manifest.
///
/// ```cpp
/// Tano::ManifestReader reader(Tano::ManifestReader::Positions::Keep);
/// if (!reader.readContent(manifest, record))
///     return;
/// PackageModel::IssuePlaces places(reader);
/// for (const PackageModel::Issue &issue : PackageModel::issues(&package))
///     out << PackageModel::reportLine(fileName, places.of(issue), issue) << '\n';
/// ```
class PACKAGEMODEL_EXPORT IssuePlaces {
public:
    /// `reader` must have read the manifest with Positions::Keep, and must outlive this object.
    explicit IssuePlaces(const Tano::ManifestReader &reader);
    ~IssuePlaces();
    IssuePlaces(const IssuePlaces &) = delete;
    IssuePlaces &operator=(const IssuePlaces &) = delete;

    /// The position of an issue; for a missing field, that of the element that should contain it.
    Tano::SourcePosition of(const Issue &issue);

private:
    struct Data;
    std::unique_ptr<Data> m_data;
};

/// A finding in the format of compilers: "FILE:LINE:COLUMN: error: text [id]". `rule` includes the
/// brackets; severity and rule may contain escape sequences for a terminal.
PACKAGEMODEL_EXPORT QString reportLine(const QString &file, Tano::SourcePosition position,
                                       const QString &severity, const QString &text,
                                       const QString &rule);
/// The line of an issue in plain text.
PACKAGEMODEL_EXPORT QString reportLine(const QString &file, Tano::SourcePosition position,
                                       const Issue &issue);

} // namespace Zel::PackageModel
