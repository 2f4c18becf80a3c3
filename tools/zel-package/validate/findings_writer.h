#pragma once

#include "console/console.h"
#include "manifest_finding.h"

#include <QVector>

#include <memory>

namespace ZelPackage {

/// What has come of a run over some manifests.
struct Report {
    int files = 0;
    int errors = 0; ///< malformed manifests among them
    int warnings = 0;
    int notes = 0;
    int malformed = 0;
    int unreadable = 0;
    int truncated = 0; ///< with more findings of a rule than are listed
    ExitStatus status = Fine;
    QVector<Zel::PackageModel::Rule> explained; ///< the rules to explain, if any
};

/// Writes findings to standard output in one format, each at once, so that no number of them takes
/// up memory.
class FindingsWriter {
public:
    FindingsWriter() = default;
    virtual ~FindingsWriter() = default;
    FindingsWriter(const FindingsWriter &) = delete;
    FindingsWriter &operator=(const FindingsWriter &) = delete;

    virtual void begin() = 0;
    virtual void write(const ManifestFinding &finding) = 0;
    /// A file that could not be read, and why not.
    virtual void writeUnreadable(const QString &file, const QString &trouble) = 0;
    /// A file with more findings than are listed, and how many those are.
    virtual void writeTruncated(const QString &file, const QString &note) = 0;
    virtual void finish(const Report &report) = 0;
};

[[nodiscard]] std::unique_ptr<FindingsWriter> makeTextWriter(Console &console);
[[nodiscard]] std::unique_ptr<FindingsWriter> makeJsonWriter(Console &console);
/// SARIF 2.1.0 (OASIS Standard).
[[nodiscard]] std::unique_ptr<FindingsWriter> makeSarifWriter(Console &console);

} // namespace ZelPackage
