#pragma once

#include <packagemodel/package_issues.h>

#include <tano/manifest_reader.h>

#include <QString>

#include <memory>

namespace Zel::PackageModel {

/// "error", "warning" or "note", in every language.
PACKAGEMODEL_EXPORT QLatin1String severityWord(Severity severity);

/// The places of issues in a manifest.
class PACKAGEMODEL_EXPORT IssuePlaces {
public:
    /// The reader has read the manifest with Positions::Keep, and has to outlive this.
    explicit IssuePlaces(const Tano::ManifestReader &reader);
    ~IssuePlaces();
    IssuePlaces(const IssuePlaces &) = delete;
    IssuePlaces &operator=(const IssuePlaces &) = delete;

    /// Of a missing field, the place of the element that should hold it.
    Tano::SourcePosition of(const Issue &issue);

private:
    struct Data;
    std::unique_ptr<Data> m_data;
};

/// A finding in the form that compilers use: "FILE:LINE:COLUMN: error: text [id]". The caller may
/// have styled the severity and the rule, which has its brackets already.
PACKAGEMODEL_EXPORT QString reportLine(const QString &file, Tano::SourcePosition position,
                                       const QString &severity, const QString &text,
                                       const QString &rule);
/// The line of an issue in plain text.
///
/// ```
/// Tano::ManifestReader reader(Tano::ManifestReader::Positions::Keep);
/// if (reader.readContent(content, record)) {
///     IssuePlaces places(reader);
///     for (const Issue &issue : issues(&package))
///         print(reportLine(fileName, places.of(issue), issue));
/// }
/// ```
PACKAGEMODEL_EXPORT QString reportLine(const QString &file, Tano::SourcePosition position,
                                       const Issue &issue);

} // namespace Zel::PackageModel
