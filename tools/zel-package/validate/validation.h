#pragma once

#include "baseline.h"
#include "configuration.h"
#include "validate_request.h"

#include <tano/manifest_reader.h>

#include <optional>

namespace ZelPackage {

/// Checks manifests one after another, fixes them if that is asked for, and counts the findings.
class Validation {
public:
    /// Findings go to `writer`, everything else that is reported to `messages`, and fixed manifests
    /// from standard input and differences to `output`.
    Validation(const ValidateRequest &request, FindingsWriter &writer, Console &messages,
               Console &output);

    /// Reads the configuration and the baseline that are named; returns false once an error has
    /// been reported.
    [[nodiscard]] bool prepare();

    /// `patchName` is the name of the file in differences; see patchNames().
    void check(const QString &file, const QString &patchName);
    /// A file or folder that could not be worked on.
    void reportTrouble(const QString &file, const QString &trouble,
                       Tano::SourcePosition position = {});

    /// Writes the baseline that is asked for, and returns the result.
    Report finish();

private:
    struct Target;

    Target targetOf(const QString &file);
    void fix(const Target &target, std::string &content);
    bool save(const Target &target, const std::string &content, const Tano::PackageInfo &fixed);
    bool read(const Target &target, Tano::ManifestReader &reader, CheckedManifest &manifest,
              QString &trouble);
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
    bool m_hasTrouble = false;
    bool m_hasFailed = false;
    QSet<QString> m_found; // the ids of rules
};

} // namespace ZelPackage
