#pragma once

#include "console/console.h"
#include "manifest_finding.h"

#include <QVector>

#include <memory>

namespace ZelPackage {

/// The result of checking manifests.
struct Report {
    int files = 0;
    int errors = 0; ///< includes malformed manifests
    int warnings = 0;
    int notes = 0;
    int malformed = 0;
    int unreadable = 0;
    int truncated = 0; ///< manifests for which not all findings of a rule are listed
    int fixed = 0;
    ExitStatus status = Fine;
    QVector<Zel::PackageModel::Rule> explained; ///< the rules to explain, if any
};

/// Writes findings in one format, manifest by manifest, so that memory use does not grow with their
/// number.
class FindingsWriter {
public:
    FindingsWriter() = default;
    virtual ~FindingsWriter() = default;
    FindingsWriter(const FindingsWriter &) = delete;
    FindingsWriter &operator=(const FindingsWriter &) = delete;

    /// Whether findings must include their fixes.
    virtual bool needsFixes() const { return false; }
    /// The maximum size in bytes of manifests whose content must be provided.
    virtual std::size_t neededContent() const { return 0; }

    virtual void begin() {}
    virtual void write(const CheckedManifest &manifest) = 0;
    /// Reports a file that could not be read or written; also printed to standard error.
    virtual void writeError(const QString & /*file*/, const QString & /*reason*/) {}
    /// Reports a file with more findings than listed; also printed to standard error.
    virtual void writeTruncated(const QString & /*file*/, const QString & /*note*/) {}
    virtual void finish(const Report & /*report*/) {}
};

[[nodiscard]] std::unique_ptr<FindingsWriter> makeTextWriter(Console &console);
[[nodiscard]] std::unique_ptr<FindingsWriter> makeJsonWriter(Console &console);
[[nodiscard]] std::unique_ptr<FindingsWriter> makeSarifWriter(Console &console);
[[nodiscard]] std::unique_ptr<FindingsWriter> makeGithubWriter(Console &console);

} // namespace ZelPackage
