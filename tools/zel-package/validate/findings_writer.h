#pragma once

#include "console/console.h"
#include "manifest_finding.h"

#include <QVector>

#include <memory>

namespace ZelPackage {

/// The result of a run over some manifests.
struct Report {
    int files = 0;
    int errors = 0; ///< malformed manifests among them
    int warnings = 0;
    int notes = 0;
    int malformed = 0;
    int unreadable = 0;
    int truncated = 0; ///< with more findings of a rule than are listed
    int fixed = 0;
    ExitStatus status = Fine;
    QVector<Zel::PackageModel::Rule> explained; ///< the rules to explain, if any
};

/// Writes findings in one format, manifest by manifest, so that many manifests take up no memory.
class FindingsWriter {
public:
    FindingsWriter() = default;
    virtual ~FindingsWriter() = default;
    FindingsWriter(const FindingsWriter &) = delete;
    FindingsWriter &operator=(const FindingsWriter &) = delete;

    /// Whether findings are to have their fixes.
    virtual bool needsFixes() const { return false; }
    /// The size in bytes up to which the content of a manifest is to be there.
    virtual std::size_t neededContent() const { return 0; }

    virtual void begin() {}
    virtual void write(const CheckedManifest &manifest) = 0;
    /// A file that could not be read or written, and the reason. Standard error has it too.
    virtual void writeTrouble(const QString & /*file*/, const QString & /*trouble*/) {}
    /// A file with more findings than are listed. Standard error has the note too.
    virtual void writeTruncated(const QString & /*file*/, const QString & /*note*/) {}
    virtual void finish(const Report & /*report*/) {}
};

[[nodiscard]] std::unique_ptr<FindingsWriter> makeTextWriter(Console &console);
[[nodiscard]] std::unique_ptr<FindingsWriter> makeJsonWriter(Console &console);
[[nodiscard]] std::unique_ptr<FindingsWriter> makeSarifWriter(Console &console);
[[nodiscard]] std::unique_ptr<FindingsWriter> makeGithubWriter(Console &console);

} // namespace ZelPackage
