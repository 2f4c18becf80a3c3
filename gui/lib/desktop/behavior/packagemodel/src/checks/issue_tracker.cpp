#include <packagemodel/issue_tracker.h>

#include "commented_record.h"
#include "finding_issues.h"
#include "further_checks.h"
#include "package_fixes.h"
#include "package_info_data.h"

#include <QHash>
#include <QPointer>

#include <algorithm>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace Zel::PackageModel {
namespace {

// Issues are listed by the check that makes them: those of the application, trigger sentences, and
// the further checks.
enum Section : int { Application, TriggerSentences, Further };

struct SectionFinding {
    int section;
    Finding finding;
};

struct SectionIssue {
    int section;
    Issue issue;
};

bool isSame(const Issue &a, const Issue &b) {
    const auto keyOf = [](const Issue &issue) {
        return issue.node ? std::make_tuple(issue.node->kind, issue.node->name, issue.node->index)
                          : std::make_tuple(Tano::UnknownNode::Kind::Element, std::string(), -1);
    };
    return a.id == b.id && a.path == b.path && a.text == b.text && keyOf(a) == keyOf(b);
}

bool isSame(const SectionIssue &a, const SectionIssue &b) {
    return a.section == b.section && isSame(a.issue, b.issue);
}

template<typename List>
bool areSame(const List &a, const List &b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const auto &left, const auto &right) { return isSame(left, right); });
}

std::vector<SectionIssue> issuesOf(const std::vector<SectionFinding> &findings) {
    std::vector<SectionIssue> issues;
    for (const auto &[section, finding] : findings) {
        if (!isNamed(finding))
            continue;
        issues.push_back({section, bareIssueOf(finding)});
        complete(issues.back().issue, finding);
    }
    return issues;
}

// Collects what checks append, with their section.
class SectionedFindings {
public:
    template<typename Check>
    void add(int section, Check check) {
        Findings found;
        check(found);
        for (Finding &finding : found)
            m_all.push_back({section, std::move(finding)});
    }
    std::vector<SectionFinding> take() { return std::move(m_all); }

private:
    std::vector<SectionFinding> m_all;
};

std::vector<SectionFinding> checkPackage(const CheckedPackage &checked) {
    SectionedFindings findings;
    for (const Check check : applicationChecks)
        findings.add(Application, [&](Findings &found) { check(checked.package, found); });
    int section = Further;
    for (const FurtherCheck &check : furtherChecks()) {
        if (check.ofPackage)
            findings.add(section, [&](Findings &found) { check.ofPackage(checked, found); });
        ++section;
    }
    return findings.take();
}

std::vector<SectionFinding> checkBehavior(const CheckedPackage &checked,
                                          const BehaviorPlace &place) {
    SectionedFindings findings;
    findings.add(TriggerSentences, [&](Findings &found) {
        checkTriggerSentences(checked.package, *place.behavior, place.occurrence, found);
    });
    int section = Further;
    for (const FurtherCheck &check : furtherChecks()) {
        if (check.ofBehavior)
            findings.add(section,
                         [&](Findings &found) { check.ofBehavior(checked, place, found); });
        ++section;
    }
    return findings.take();
}

// What checks of a behavior depend on beyond the behavior and its place.
std::vector<std::string> commonInput(const PackageInfoModel &package) {
    std::vector<std::string> input;
    for (const RobotLanguages &list :
         {package.supportedLanguages(), package.descriptionLanguages()}) {
        for (const RobotLanguage &language : list)
            input.push_back(toUtf8(language.isoCode() + u' ' + language.uiName()));
        input.emplace_back();
    }
    return input;
}

} // namespace

struct PACKAGEMODEL_NO_EXPORT IssueTracker::Data {
    // The state of a behavior at its last check, and its issues.
    struct CheckedBehavior {
        const BehaviorInfoModel *model; // may be dangling
        std::uint64_t revision = 0;
        QString path = {};
        int occurrence = 0;
        std::vector<SectionIssue> issues = {};
        bool hasIgnoreComments = false;
        bool hasKeptNodes = false;
    };

    bool updateOrder();
    void updateOccurrences();
    bool updatePaths();
    bool updateBehavior(const CheckedPackage &checked, CheckedBehavior &behavior, bool isForced);
    void updateOutline(const Tano::PackageInfo &record);
    bool isInStep(const Tano::PackageInfo &record) const;
    void updateNodes(const Tano::PackageInfo &record);
    bool updateFilter();
    QVector<Issue> assembled() const;

    QPointer<const PackageInfoModel> package;
    IssueOptions options;
    std::vector<std::string> input;
    IssueFilter filter;
    std::shared_ptr<const CheckedPackage::UnknownNodes> unknownNodes;
    bool isFilterStale = true;
    bool areNodesStale = true;
    Tano::PackageInfo outline;      // of the package itself when the above were made
    std::uint64_t wholeChanges = 0; // likewise
    std::vector<SectionIssue> ofPackage;
    std::vector<CheckedBehavior> behaviors;
    QVector<Issue> issues;
};

// Updates the list of behaviors; those that remain keep their issues.
bool IssueTracker::Data::updateOrder() {
    const QVector<BehaviorInfoModel *> &present =
        childrenOf<BehaviorInfoModel>(*package).children();
    if (std::equal(present.begin(), present.end(), behaviors.begin(), behaviors.end(),
                   [](const auto *model, const auto &old) { return model == old.model; }))
        return false;
    std::unordered_map<const BehaviorInfoModel *, CheckedBehavior *> known;
    for (CheckedBehavior &behavior : behaviors)
        known.emplace(behavior.model, &behavior);
    std::vector<CheckedBehavior> ordered;
    ordered.reserve(std::size_t(present.size()));
    for (const BehaviorInfoModel *model : present) {
        const auto old = known.find(model);
        ordered.push_back(old == known.end() ? CheckedBehavior{model} : std::move(*old->second));
    }
    behaviors = std::move(ordered);
    return true;
}

// Returns whether the path of a behavior has changed.
bool IssueTracker::Data::updatePaths() {
    bool isChanged = false;
    for (CheckedBehavior &behavior : behaviors) {
        if (behavior.revision == ChildAccess::data(*behavior.model).revision())
            continue;
        const QString path = behavior.model->path();
        isChanged |= std::exchange(behavior.path, path) != path;
    }
    return isChanged;
}

// Counts behaviors with the same path; one whose number changes is checked again.
void IssueTracker::Data::updateOccurrences() {
    QHash<QString, int> counts;
    counts.reserve(int(behaviors.size()));
    for (CheckedBehavior &behavior : behaviors) {
        const int occurrence = counts[behavior.path]++;
        if (std::exchange(behavior.occurrence, occurrence) != occurrence)
            behavior.revision = 0;
    }
}

bool IssueTracker::Data::updateBehavior(const CheckedPackage &checked, CheckedBehavior &behavior,
                                        bool isForced) {
    const std::uint64_t revision = ChildAccess::data(*behavior.model).revision();
    if (std::exchange(behavior.revision, revision) == revision && !isForced)
        return false;
    const Tano::BehaviorInfo &record = ChildAccess::data(*behavior.model).record();
    if (options.filterFor) {
        const bool has = hasIgnoreComments(record);
        isFilterStale |= std::exchange(behavior.hasIgnoreComments, has) || has;
    }
    const bool hasNodes = hasUnknownContent(record);
    areNodesStale |= std::exchange(behavior.hasKeptNodes, hasNodes) || hasNodes;
    auto found = issuesOf(checkBehavior(checked, {behavior.model, behavior.occurrence}));
    std::swap(behavior.issues, found);
    return !areSame(behavior.issues, found);
}

// Comments and unknown nodes are looked for in the whole record, which may take long.
void IssueTracker::Data::updateOutline(const Tano::PackageInfo &record) {
    if (!options.filterFor && !Tano::hasKeptNodes(record))
        return;
    auto present = ownOutlineOf(*package);
    const std::uint64_t changes = ChildAccess::data(*package).wholeChanges;
    const bool isWhole = std::exchange(wholeChanges, changes) != changes;
    if (!isWhole && present == outline)
        return;
    outline = std::move(present);
    isFilterStale = true;
    areNodesStale = true;
}

// Insertions into a behavior's lists reach the package's record with the next change.
bool IssueTracker::Data::isInStep(const Tano::PackageInfo &record) const {
    if (record.behaviors().size() != behaviors.size())
        return false;
    for (std::size_t i = 0; i < behaviors.size(); ++i) {
        if (behaviors[i].hasKeptNodes &&
            record.behaviors()[i] != ChildAccess::data(*behaviors[i].model).record())
            return false;
    }
    return true;
}

void IssueTracker::Data::updateNodes(const Tano::PackageInfo &record) {
    using Nodes = CheckedPackage::UnknownNodes;
    if (!Tano::hasKeptNodes(record)) {
        unknownNodes = std::make_shared<const Nodes>();
        areNodesStale = true;
    } else if (areNodesStale) {
        unknownNodes = std::make_shared<const Nodes>(
            Tano::unknownNodes(withContentOf(record, &hasUnknownContent)));
        areNodesStale = !isInStep(record);
    }
}

// Returns whether there is a new one.
bool IssueTracker::Data::updateFilter() {
    if (!options.filterFor || !std::exchange(isFilterStale, false))
        return false;
    filter = options.filterFor(*package);
    return true;
}

QVector<Issue> IssueTracker::Data::assembled() const {
    std::vector<const CheckedBehavior *> faulty;
    for (const CheckedBehavior &behavior : behaviors) {
        if (!behavior.issues.empty())
            faulty.push_back(&behavior);
    }
    std::vector<const CheckedBehavior *> byPath = faulty;
    std::stable_sort(byPath.begin(), byPath.end(),
                     [](const auto *a, const auto *b) { return a->path < b->path; });

    std::vector<std::vector<const Issue *>> sections(Further + furtherChecks().size());
    const auto add = [&](const std::vector<SectionIssue> &found) {
        for (const auto &[section, issue] : found)
            sections[std::size_t(section)].push_back(&issue);
    };
    add(ofPackage);
    for (const CheckedBehavior *behavior : faulty)
        add(behavior->issues);
    auto &sentences = sections[TriggerSentences];
    sentences.clear();
    for (const CheckedBehavior *behavior : byPath) {
        for (const auto &[section, issue] : behavior->issues) {
            if (section == TriggerSentences)
                sentences.push_back(&issue);
        }
    }

    QVector<Issue> all;
    for (const auto &section : sections) {
        for (const Issue *issue : section) {
            if (isAmong(options.paths, *issue) && (!filter || filter(*issue)))
                all.append(*issue);
        }
    }
    return all;
}

IssueTracker::IssueTracker(const PackageInfoModel *package, const IssueOptions &options)
    : m_data(std::make_unique<Data>()) {
    m_data->package = package;
    m_data->options = options;
    update();
}

IssueTracker::~IssueTracker() = default;

bool IssueTracker::update() {
    if (!m_data->package) {
        m_data->behaviors.clear();
        return !std::exchange(m_data->issues, {}).isEmpty();
    }
    const PackageInfoModel &package = *m_data->package;
    const bool isOrderChanged = m_data->updateOrder();
    if (m_data->updatePaths() || isOrderChanged) {
        m_data->updateOccurrences();
        m_data->isFilterStale = true;
        m_data->areNodesStale = true;
    }

    bool isChanged = isOrderChanged;
    const CheckedPackage checked(package, package.packageInfo(), m_data->options);
    auto input = commonInput(package);
    const bool isForced = std::exchange(m_data->input, input) != input;
    for (auto &behavior : m_data->behaviors)
        isChanged |= m_data->updateBehavior(checked, behavior, isForced);
    m_data->updateOutline(checked.record);
    m_data->updateNodes(checked.record);
    checked.knownNodes = m_data->unknownNodes;
    auto ofPackage = issuesOf(checkPackage(checked));
    std::swap(m_data->ofPackage, ofPackage);
    isChanged |= !areSame(m_data->ofPackage, ofPackage);

    isChanged |= m_data->updateFilter();
    if (!isChanged)
        return false;
    const QVector<Issue> before = std::exchange(m_data->issues, m_data->assembled());
    return !areSame(before, m_data->issues);
}

const QVector<Issue> &IssueTracker::issues() const {
    return m_data->issues;
}

QVector<Fix> IssueTracker::fixes(const Issue &issue) const {
    if (!m_data->package)
        return {};
    const PackageInfoModel &package = *m_data->package;
    const CheckedPackage checked(package, package.packageInfo(), m_data->options);
    const auto fixesAmong =
        [&](const std::vector<SectionFinding> &findings) -> std::optional<QVector<Fix>> {
        for (const auto &[section, finding] : findings) {
            Issue found = bareIssueOf(finding);
            if (found.id != issue.id || found.path != issue.path)
                continue;
            complete(found, finding);
            if (isSame(found, issue))
                return FixMaker(package).fixesOf(finding);
        }
        return std::nullopt;
    };
    const auto path = Tano::FieldPath::parse(toUtf8(issue.path));
    const auto &present = childrenOf<BehaviorInfoModel>(package).children();
    const int count = qMin(int(present.size()), int(m_data->behaviors.size()));
    for (int i = 0; path && !path->isEmpty() && i < count; ++i) {
        const auto &behavior = m_data->behaviors[std::size_t(i)];
        const BehaviorPlace place{behavior.model, behavior.occurrence};
        if (behavior.model != present.at(i) ||
            !(place.path().steps().front() == path->steps().front()))
            continue;
        if (const auto fixes = fixesAmong(checkBehavior(checked, place)))
            return *fixes;
    }
    return fixesAmong(checkPackage(checked)).value_or(QVector<Fix>());
}

} // namespace Zel::PackageModel
