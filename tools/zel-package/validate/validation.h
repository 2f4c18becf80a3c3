#pragma once

#include "baseline.h"
#include "configuration.h"
#include "validate_request.h"

#include <tano/manifest_reader.h>

#include <optional>

namespace ZelPackage {

/// Checks manifests one by one, optionally fixes them, and counts the findings.
class Validation {
public:
    /// Findings go to `writer`, all other reports to `messages`, and fixed manifests from standard
    /// input and differences to `output`.
    Validation(const ValidateRequest &request, FindingsWriter &writer, Console &messages,
               Console &output);

    /// Reads the given configuration and baseline; returns false after reporting an error.
    [[nodiscard]] bool prepare();

    /// `patchName` is the file's name in differences, see patchNames().
    void check(const QString &file, const QString &patchName);
    /// Reports a file or folder that could not be processed.
    void reportError(const QString &file, const QString &reason,
                     Tano::SourcePosition position = {});

    /// Writes the requested baseline and returns the result.
    Report finish();

private:
    struct Target;

    Target targetOf(const QString &file);
    void fix(const Target &target, std::string &content);
    bool save(const Target &target, const std::string &content, const Tano::PackageInfo &fixed);
    bool read(const Target &target, Tano::ManifestReader &reader, CheckedManifest &manifest,
              QString &reason);
    void collect(const Target &target, const Tano::ManifestReader &reader,
                 CheckedManifest &manifest);
    std::vector<ManifestFinding> unusedEntries(const QString &file) const;
    void reportMissingManifests();
    void write(const Target &target, CheckedManifest &manifest);
    void count(const ManifestFinding &finding, const RuleSettings &settings);
    void reportTruncated(const QString &file);

    const ValidateRequest &m_request;
    FindingsWriter &m_writer;
    Console &m_messages;
    Console &m_output;
    Configurations m_configurations;
    std::optional<Baseline> m_baseline;
    std::optional<Baseline> m_newBaseline;
    Report m_report;
    bool m_hasError = false;
    bool m_hasFailed = false;
    QSet<QString> m_found; // rule ids
};

} // namespace ZelPackage
