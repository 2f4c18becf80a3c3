#include "validation.h"

#include "console/library_text.h"
#include "console/text_diff.h"
#include "manifest/manifest_source.h"
#include "manifest_fixes.h"
#include "report_rules.h"

#include <packagemodel/ignore_comments.h>
#include <packagemodel/issue_report.h>
#include <packagemodel/package_info_model.h>

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace ZelPackage {
namespace {

using Zel::PackageModel::IgnoreComments;
using Zel::PackageModel::Issue;
using Zel::PackageModel::IssueOptions;
using Zel::PackageModel::IssueVisit;
using Zel::PackageModel::Rule;
using Zel::PackageModel::Severity;

// Per rule and manifest. There may be as many as behaviors times languages.
constexpr int mostFindings = 10000;

void sortByPlace(std::vector<ManifestFinding> &findings) {
    const auto place = [](const ManifestFinding &finding) {
        return std::pair(finding.position.line, finding.position.column);
    };
    std::stable_sort(findings.begin(), findings.end(),
                     [&](const auto &a, const auto &b) { return place(a) < place(b); });
}

} // namespace

// A manifest to check.
struct Validation::Target {
    QString file; // as opened
    QString name; // as reported
    QString patchName;
    QString folder;
    RuleSettings settings;
};

Validation::Validation(const ValidateRequest &request, FindingsWriter &writer, Console &messages,
                       Console &output)
    : m_request(request)
    , m_writer(writer)
    , m_messages(messages)
    , m_output(output)
    , m_configurations([this](const QString &file, const ConfigurationError &error) {
        reportError(file, error.text, error.position);
    }) {
    if (!request.newBaseline.isEmpty())
        m_newBaseline.emplace(request.newBaseline);
}

bool Validation::prepare() {
    if (!m_request.configuration.isEmpty() && !m_configurations.use(m_request.configuration))
        return false;
    if (m_request.baseline.isEmpty())
        return true;
    m_baseline.emplace(m_request.baseline);
    QString error;
    Tano::SourcePosition position;
    if (m_baseline->read(error, position))
        return true;
    m_messages.printMessage(m_request.baseline, position, error);
    return false;
}

void Validation::reportError(const QString &file, const QString &reason,
                             Tano::SourcePosition position) {
    m_hasError = true;
    m_writer.writeError(file, reason);
    m_messages.printMessage(file, position, reason);
}

Validation::Target Validation::targetOf(const QString &file) {
    const bool isNamed = !isStandardStream(file) || !m_request.stdinName.isEmpty();
    Target target{file, isStandardStream(file) && isNamed ? m_request.stdinName : file, {}, {}, {}};
    if (isNamed)
        target.folder = QFileInfo(target.name).path();
    const Configuration &configuration =
        m_configurations.of(isNamed ? target.folder : QStringLiteral("."));
    target.settings = configuration.settingsFor(target.name);
    target.settings.failOn = m_request.failOn.value_or(target.settings.failOn);
    for (const QString &rule : m_request.ignored)
        target.settings.severities[rule] = std::nullopt;
    return target;
}

void Validation::check(const QString &file, const QString &patchName) {
    ++m_report.files;
    Target target = targetOf(file);
    target.patchName = patchName;
    CheckedManifest manifest{target.name};
    Tano::ManifestReader reader(Tano::ManifestReader::Positions::Keep);
    QString reason;
    if (read(target, reader, manifest, reason)) {
        collect(target, reader, manifest);
    } else if (reason.isEmpty()) {
        ++m_report.malformed;
        m_hasError = true;
        manifest.findings.push_back({reader.errorPosition(),
                                     malformedRuleId,
                                     Severity::Error,
                                     {},
                                     translatedSentence(reader.errorMessage())});
    } else {
        ++m_report.unreadable;
        reportError(target.name, reason);
        return;
    }
    write(target, manifest);
}

// A manifest's bytes take as much memory as everything else, so they are read and kept only if
// needed.
bool Validation::read(const Target &target, Tano::ManifestReader &reader, CheckedManifest &manifest,
                      QString &reason) {
    if (!m_request.fixes && m_writer.neededContent() == 0)
        return readPackage(target.file, reader, manifest.record, reason);
    auto content = readContent(target.file, reason);
    if (!content)
        return false;
    if (m_request.fixes)
        fix(target, *content);
    const bool isRead = reader.readContent(*content, manifest.record);
    if (content->size() <= m_writer.neededContent())
        manifest.content = std::move(*content);
    return isRead;
}

void Validation::fix(const Target &target, std::string &content) {
    Tano::ManifestReader reader;
    Tano::PackageInfo record;
    if (!reader.readContent(content, record))
        return;
    IssueOptions options{target.folder, &record};
    options.filterFor = [&target](const Zel::PackageInfoModel &package) {
        const auto ignored = std::make_shared<IgnoreComments>(package.packageInfo());
        return [&target, ignored](const Issue &issue) {
            return !target.settings.isOff(issue.id) && !ignored->ignores(issue.id, issue.path);
        };
    };
    const FixedManifest fixed = fixedManifest(record, *m_request.fixes, options);
    if (!fixed.error.isEmpty())
        reportError(target.name, fixed.error);
    const bool isChanged = !fixed.content.empty() && fixed.content != content;
    if (isChanged && (m_request.showsDiff || isStandardStream(target.file) ||
                      save(target, content, fixed.record))) {
        if (m_request.showsDiff)
            m_output.print(unifiedDiff(target.patchName, content, fixed.content, m_output));
        ++m_report.fixed;
        content = fixed.content;
    }
    if (isStandardStream(target.file) && !m_request.showsDiff)
        m_output.printBytes(content);
}

bool Validation::save(const Target &target, const std::string &content,
                      const Tano::PackageInfo &fixed) {
    if (saveIfUnchanged(target.file, {{}, content}, fixed))
        return true;
    reportError(target.name, translatedSentence(fixed.errorString()));
    return false;
}

namespace {

// The rules of comments that were not used and the ones that do not exist. They have no position;
// their field is the one that follows the comment.
std::vector<ManifestFinding> findingsOf(const IgnoreComments &comments) {
    if (comments.entries().empty())
        return {};
    const QStringList known = changeableRuleIds();
    std::vector<ManifestFinding> findings;
    for (const IgnoreComments::Entry &entry : comments.entries()) {
        const QString field = Zel::fromUtf8(entry.element.toString());
        if (!known.contains(entry.rule))
            findings.push_back({{},
                                ignoreUnknownRuleId,
                                Severity::Warning,
                                field,
                                unknownRule(entry.rule, known)});
        else if (!entry.isUsed)
            findings.push_back({{},
                                ignoreUnusedRuleId,
                                Severity::Note,
                                field,
                                messageOf(ignoreUnusedRuleId).arg(entry.rule)});
    }
    return findings;
}

} // namespace

void Validation::collect(const Target &target, const Tano::ManifestReader &reader,
                         CheckedManifest &manifest) {
    const auto add = [&](ManifestFinding finding) {
        finding.severity = target.settings.severityOf(finding.ruleId, finding.severity);
        if (finding.position.line == 0)
            finding.position = reader.position(Zel::toUtf8(finding.field));
        manifest.findings.push_back(std::move(finding));
    };
    QHash<QString, int> counts;
    Zel::PackageModel::IssuePlaces places(reader);
    bool isTruncated = false;
    const auto visit = [&](const Issue &issue) {
        if (++counts[issue.id] > mostFindings) {
            isTruncated = true;
            return IssueVisit::SkipRule;
        }
        if (!m_baseline || !m_baseline->take(target.name, issue.id, issue.path))
            add({places.of(issue), issue.id, issue.severity, issue.path, issue.plainText(),
                 issue.fixes});
        return IssueVisit::Continue;
    };
    IgnoreComments ignored(manifest.record);
    IssueOptions options{target.folder, &manifest.record};
    options.withFixes = m_writer.needsFixes();
    options.filterFor = [&](const Zel::PackageInfoModel &) {
        return [&](const Issue &issue) {
            return !target.settings.isOff(issue.id) && !ignored.ignores(issue.id, issue.path);
        };
    };
    Zel::PackageModel::visitIssues(manifest.record, visit, options);
    if (isTruncated) {
        reportTruncated(target.name);
        return;
    }
    auto unused = findingsOf(ignored);
    const auto left = unusedEntries(target.name);
    unused.insert(unused.end(), left.begin(), left.end());
    for (const ManifestFinding &finding : unused) {
        if (!target.settings.isOff(finding.ruleId))
            add(finding);
    }
}

std::vector<ManifestFinding> Validation::unusedEntries(const QString &file) const {
    std::vector<ManifestFinding> findings;
    if (!m_baseline)
        return findings;
    for (const Baseline::Entry &entry : m_baseline->left(file))
        findings.push_back({{},
                            baselineUnusedRuleId,
                            Severity::Note,
                            entry.field,
                            messageOf(baselineUnusedRuleId).arg(entry.rule)});
    return findings;
}

// Reports them under the baseline, since their manifests do not exist.
void Validation::reportMissingManifests() {
    const Target target = targetOf(m_request.baseline);
    if (target.settings.isOff(baselineUnusedRuleId))
        return;
    CheckedManifest baseline{target.name};
    for (const QString &file : m_baseline->missingManifests())
        baseline.findings.push_back(
            {{1, 1},
             baselineUnusedRuleId,
             target.settings.severityOf(baselineUnusedRuleId, Severity::Note),
             {},
             QCoreApplication::translate(
                 "zel-package", "The baseline lists findings in '%1', which no longer exists.")
                 .arg(file)});
    write(target, baseline);
}

void Validation::write(const Target &target, CheckedManifest &manifest) {
    auto &findings = manifest.findings;
    const auto isReported = [&](const ManifestFinding &finding) {
        if (m_newBaseline && finding.ruleId != malformedRuleId)
            return false;
        return !m_request.isQuiet || finding.severity >= target.settings.failOn;
    };
    for (const ManifestFinding &finding : findings) {
        if (m_newBaseline && finding.ruleId != malformedRuleId &&
            finding.ruleId != baselineUnusedRuleId)
            m_newBaseline->add(target.name, finding.ruleId, finding.field);
    }
    findings.erase(std::remove_if(findings.begin(), findings.end(),
                                  [&](const auto &finding) { return !isReported(finding); }),
                   findings.end());
    sortByPlace(findings);
    for (const ManifestFinding &finding : findings)
        count(finding, target.settings);
    m_writer.write(manifest);
}

void Validation::count(const ManifestFinding &finding, const RuleSettings &settings) {
    ++(finding.severity == Severity::Error     ? m_report.errors
       : finding.severity == Severity::Warning ? m_report.warnings
                                               : m_report.notes);
    m_hasFailed = m_hasFailed || finding.severity >= settings.failOn;
    m_found += finding.ruleId;
}

void Validation::reportTruncated(const QString &file) {
    ++m_report.truncated;
    const QString note = QCoreApplication::translate(
                             "zel-package", "Of each rule, only the first %1 findings are listed.")
                             .arg(mostFindings);
    m_writer.writeTruncated(file, note);
    m_messages.printMessage(file, note);
}

Report Validation::finish() {
    if (m_baseline)
        reportMissingManifests();
    if (m_newBaseline) {
        if (const QString error = m_newBaseline->write(); !error.isEmpty())
            reportError(m_request.newBaseline, error);
        else if (!m_request.isQuiet)
            m_messages.printMessage(m_request.newBaseline,
                                    QCoreApplication::translate("zel-package", "Known findings: %1")
                                        .arg(m_newBaseline->size()));
    }
    const bool hasFailed = m_hasFailed || (m_request.showsDiff && m_report.fixed > 0);
    m_report.status = m_hasError ? Failure : hasFailed ? Findings : Fine;
    if (m_request.explains) {
        m_report.explained = reportRules();
        m_report.explained.erase(
            std::remove_if(m_report.explained.begin(), m_report.explained.end(),
                           [&](const Rule &rule) { return !m_found.contains(rule.id); }),
            m_report.explained.end());
    }
    return m_report;
}

} // namespace ZelPackage
