#include <packagemodel/package_issues.h>

#include "finding_issues.h"
#include "further_checks.h"
#include "package_fixes.h"

#include <packagemodel/package_info_model.h>

#include <QHash>

#include <algorithm>
#include <set>
#include <string_view>
#include <unordered_map>

namespace Zel::PackageModel {
namespace {

// Passes findings to the visitor as issues until it stops.
class FindingVisit {
public:
    FindingVisit(const PackageInfoModel &package,
                 const std::function<IssueVisit(const Issue &issue)> &visit,
                 const IssueOptions &options)
        : m_package(package)
        , m_fixes(package)
        , m_visit(visit)
        , m_paths(options.paths)
        , m_filter(options.filterFor ? options.filterFor(package) : IssueFilter())
        , m_withFixes(options.withFixes) {}

    // Returns false once the visitor stops.
    bool visit(const Findings &findings) {
        for (const Finding &finding : findings) {
            if (skips(finding.rule) || !isNamed(finding))
                continue;
            Issue issue = bareIssueOf(finding);
            if (!isAmong(m_paths, issue) || (m_filter && !m_filter(issue)))
                continue;
            complete(issue, finding);
            if (m_withFixes)
                issue.fixes = m_fixes.fixesOf(finding);
            const IssueVisit next = m_visit(issue);
            if (next == IssueVisit::Stop)
                return false;
            if (next == IssueVisit::SkipRule)
                m_skipped.insert(finding.rule);
        }
        return true;
    }

    bool visitTriggerSentences(const BehaviorPlace &place) {
        Findings found;
        if (!skips(RuleId::TriggerSentencesMissing))
            checkTriggerSentences(m_package, *place.behavior, place.occurrence, found);
        return visit(found);
    }

    bool skips(RuleId rule) const { return m_skipped.count(rule) != 0; }

private:
    const PackageInfoModel &m_package;
    FixMaker m_fixes;
    const std::function<IssueVisit(const Issue &issue)> &m_visit;
    const QSet<QString> &m_paths;
    IssueFilter m_filter;
    bool m_withFixes;
    std::set<RuleId> m_skipped;
};

// The behaviors to check, by path.
class BehaviorScope {
public:
    explicit BehaviorScope(const IssueOptions &options)
        : m_isEverything(options.paths.isEmpty()) {
        for (const QString &text : options.paths) {
            const auto path = Tano::FieldPath::parse(toUtf8(text));
            if (path && !path->isEmpty() && path->steps().front().field == "behaviors" &&
                !path->steps().front().selectors.empty())
                m_paths.insert(fromUtf8(path->steps().front().selectors.front().text));
        }
    }

    bool contains(const QString &path) const { return m_isEverything || m_paths.contains(path); }
    bool contains(const std::string &path) const {
        return m_isEverything || m_paths.contains(fromUtf8(path));
    }

private:
    bool m_isEverything;
    QSet<QString> m_paths;
};

std::vector<BehaviorPlace> placesOf(const QVector<BehaviorInfoModel *> &behaviors,
                                    const BehaviorScope &scope) {
    std::vector<BehaviorPlace> places;
    QHash<QString, int> counts;
    for (const BehaviorInfoModel *behavior : behaviors) {
        const QString path = behavior->path();
        if (scope.contains(path))
            places.push_back({behavior, counts[path]++});
    }
    return places;
}

// Sorted by path; behaviors with the same path keep their order.
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

bool visitApplicationChecks(const PackageInfoModel &package, FindingVisit &findings) {
    return std::all_of(applicationChecks.begin(), applicationChecks.end(), [&](Check check) {
        Findings found;
        check(package, found);
        return findings.visit(found);
    });
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
    if (!visitApplicationChecks(*package, findings))
        return;
    const CheckedPackage checked(*package, package->packageInfo(), options);
    const std::vector<BehaviorPlace> places =
        placesOf(package->behaviors(), BehaviorScope(options));
    for (const BehaviorPlace &place : inOrderOfMessages(places)) {
        if (findings.skips(RuleId::TriggerSentencesMissing))
            break;
        if (!findings.visitTriggerSentences(place))
            return;
    }
    for (const FurtherCheck &check : furtherChecks()) {
        Findings found;
        if (check.ofPackage)
            check.ofPackage(checked, found);
        for (const BehaviorPlace &place : check.ofBehavior ? places : std::vector<BehaviorPlace>())
            check.ofBehavior(checked, place, found);
        if (!findings.visit(found))
            return;
    }
}

// Creates a model for one behavior at a time, to bound memory.
void visitIssues(const Tano::PackageInfo &record,
                 const std::function<IssueVisit(const Issue &issue)> &visit,
                 const IssueOptions &options) {
    if (options.withFixes) {
        const PackageInfoModel package(record);
        visitIssues(&package, visit, options);
        return;
    }
    Tano::PackageInfo withoutBehaviors = record;
    withoutBehaviors.clearBehaviors();
    const PackageInfoModel package(withoutBehaviors);
    FindingVisit findings(package, visit, options);
    if (!visitApplicationChecks(package, findings))
        return;
    const CheckedPackage checked(package, record, options);
    Findings found;
    for (const FurtherCheck &check : furtherChecks()) {
        if (check.ofPackage)
            check.ofPackage(checked, found);
    }
    const BehaviorScope scope(options);
    std::unordered_map<std::string_view, int> counts;
    for (const Tano::BehaviorInfo &behavior : record.behaviors()) {
        if (!scope.contains(behavior.path()))
            continue;
        const BehaviorInfoModel model(behavior, nullptr);
        const BehaviorPlace place{&model, counts[behavior.path()]++};
        for (const FurtherCheck &check : furtherChecks()) {
            if (check.ofBehavior)
                check.ofBehavior(checked, place, found);
        }
        if (!findings.visit(found) || !findings.visitTriggerSentences(place))
            return;
        found.clear();
    }
    static_cast<void>(findings.visit(found));
}

} // namespace Zel::PackageModel
