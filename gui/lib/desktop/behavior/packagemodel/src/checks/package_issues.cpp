#include <packagemodel/package_issues.h>

#include "further_checks.h"
#include "package_fixes.h"

#include <packagemodel/package_info_model.h>

#include <algorithm>
#include <set>

namespace Zel::PackageModel {
namespace {

// Passes findings on as issues until the visitor has had enough.
class FindingVisit {
public:
    FindingVisit(const PackageInfoModel &package,
                 const std::function<IssueVisit(const Issue &issue)> &visit,
                 const IssueOptions &options)
        : m_package(package)
        , m_visit(visit)
        , m_filter(options.filterFor ? options.filterFor(package) : IssueFilter())
        , m_withFixes(options.withFixes) {}

    // Returns false when the visitor stops.
    bool visit(const Findings &findings) {
        for (const Finding &finding : findings) {
            if (skips(finding.rule) || !isNamed(finding))
                continue;
            Issue issue = bareIssueOf(finding);
            if (m_filter && !m_filter(issue))
                continue;
            issue.text = message(finding, {finding.language});
            if (m_withFixes)
                issue.fixes = fixesOf(finding, m_package);
            const IssueVisit next = m_visit(issue);
            if (next == IssueVisit::Stop)
                return false;
            if (next == IssueVisit::SkipRule)
                m_skipped.insert(finding.rule);
        }
        return true;
    }

    bool skips(RuleId rule) const { return m_skipped.count(rule) != 0; }

private:
    static Issue bareIssueOf(const Finding &finding) {
        const RuleRow &row = ruleRow(finding.rule);
        return {QLatin1String(row.id), row.severity, fromUtf8(pathOf(finding).toString()), {}};
    }

    // A message without a language would say nothing.
    static bool isNamed(const Finding &finding) {
        return finding.rule != RuleId::TriggerSentencesMissing ||
               !finding.language.uiName().isEmpty();
    }

    const PackageInfoModel &m_package;
    const std::function<IssueVisit(const Issue &issue)> &m_visit;
    IssueFilter m_filter;
    bool m_withFixes;
    std::set<RuleId> m_skipped;
};

// By ascending path; behaviors with the same path keep their order.
std::vector<BehaviorPlace> inOrderOfMessages(std::vector<BehaviorPlace> behaviors) {
    std::vector<std::pair<QString, BehaviorPlace>> byPath;
    byPath.reserve(behaviors.size());
    for (const BehaviorPlace &place : behaviors)
        byPath.emplace_back(place.behavior->path(), place);
    std::stable_sort(byPath.begin(), byPath.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    std::transform(byPath.begin(), byPath.end(), behaviors.begin(),
                   [](const auto &entry) { return entry.second; });
    return behaviors;
}

} // namespace

QVector<Issue> issues(const PackageInfoModel *package, const IssueOptions &options) {
    QVector<Issue> issues;
    visitIssues(
        package,
        [&](const Issue &issue) {
            issues.append(issue);
            return IssueVisit::Continue;
        },
        options);
    return issues;
}

void visitIssues(const PackageInfoModel *package,
                 const std::function<IssueVisit(const Issue &issue)> &visit,
                 const IssueOptions &options) {
    if (!package)
        return;
    FindingVisit findings(*package, visit, options);
    const auto visitResult = [&](auto &&check) {
        Findings found;
        check(found);
        return findings.visit(found);
    };
    for (const Check check : applicationChecks) {
        if (!visitResult([&](Findings &found) { check(*package, found); }))
            return;
    }
    const CheckedPackage checked(*package, options);
    for (const auto &[behavior, occurrence] : inOrderOfMessages(checked.behaviors)) {
        if (findings.skips(RuleId::TriggerSentencesMissing))
            break;
        if (!visitResult([&, behavior = behavior, occurrence = occurrence](Findings &found) {
                checkTriggerSentences(*package, *behavior, occurrence, found);
            }))
            return;
    }
    for (const FurtherCheck check : furtherChecks()) {
        if (!visitResult([&](Findings &found) { check(checked, found); }))
            return;
    }
}

} // namespace Zel::PackageModel
