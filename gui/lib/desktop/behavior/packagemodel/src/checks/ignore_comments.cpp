#include <packagemodel/ignore_comments.h>

#include "commented_record.h"

#include <packagemodel/package_info_model.h>
#include <packagemodel/text_conversion.h>

#include <tano/behavior_info.h>
#include <tano/kept_content.h>

#include <QRegularExpression>
#include <QStringBuilder>
#include <QStringList>

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace Zel::PackageModel {
namespace {

using Tano::FieldPath;

// The fields of a block of texts, in the order of writing.
constexpr std::array<const char *, 5> textFields{"names", "descriptions", "tags",
                                                 "triggerSentences", "loadingResponses"};

// The rules in a comment; empty for a comment of another kind.
QStringList rulesIn(const Tano::KeptComment &comment) {
    static const QRegularExpression form(
        QRegularExpression::anchoredPattern(QStringLiteral("\\s*zel-package:\\s*ignore\\b(.*)")),
        QRegularExpression::DotMatchesEverythingOption);
    const auto match = form.match(fromUtf8(comment.text));
    QStringList rules;
    if (match.hasMatch()) {
        const auto words = match.captured(1).split(u',');
        for (const QString &word : words)
            rules += word.trimmed();
    }
    return rules;
}

FieldPath withoutLastStep(const FieldPath &path) {
    FieldPath outer = path;
    while (outer.steps().size() == path.steps().size())
        outer = outer.parent();
    return outer;
}

bool isText(const FieldPath::Step &step) {
    return !step.selectors.empty() &&
           std::find(textFields.begin(), textFields.end(), step.field) != textFields.end();
}

// Finds the first text of each block.
class TextBlocks {
public:
    explicit TextBlocks(const Tano::PackageInfo &record)
        : m_record(record) {
        for (const Tano::BehaviorInfo &behavior : record.behaviors())
            m_behaviors[behavior.path()].push_back(&behavior);
    }

    // The first text in the block of a text; nullopt for other fields.
    std::optional<FieldPath> firstIn(const FieldPath &path) const;
    bool beginsAt(const FieldPath &path) const;

private:
    using Present = std::array<bool, textFields.size()>;

    // The fields with texts in a language, in the package or behavior that a path leads to.
    Present textsOf(const FieldPath &path, const std::string &code) const;

    const Tano::PackageInfo &m_record;
    std::unordered_map<std::string_view, std::vector<const Tano::BehaviorInfo *>> m_behaviors;
};

TextBlocks::Present TextBlocks::textsOf(const FieldPath &path, const std::string &code) const {
    const auto ownTexts = [&](const auto &owner) {
        return Present{owner.names().count(code) > 0, owner.descriptions().count(code) > 0};
    };
    if (path.steps().size() == 1)
        return ownTexts(m_record);
    const auto &entry = path.steps().front().selectors;
    const auto equal = entry.empty() ? m_behaviors.end() : m_behaviors.find(entry.front().text);
    const int occurrence = entry.size() > 1 ? entry[1].toIndex().value_or(0) : 0;
    if (equal == m_behaviors.end() || std::size_t(occurrence) >= equal->second.size())
        return {};
    const Tano::BehaviorInfo &behavior = *equal->second[std::size_t(occurrence)];
    Present texts = ownTexts(behavior);
    texts[2] = behavior.languagesToTags().count(code) > 0;
    texts[3] = behavior.languagesToTriggerSentences().count(code) > 0;
    texts[4] = true;
    return texts;
}

std::optional<FieldPath> TextBlocks::firstIn(const FieldPath &path) const {
    if (path.isEmpty() || !isText(path.steps().back()))
        return {};
    const std::string &code = path.steps().back().selectors.front().text;
    const auto texts = textsOf(path, code);
    const auto first = std::find(texts.begin(), texts.end(), true) - texts.begin();
    if (std::size_t(first) == texts.size())
        return {};
    return withoutLastStep(path).field(textFields[std::size_t(first)]).key(code);
}

bool TextBlocks::beginsAt(const FieldPath &path) const {
    const auto first = firstIn(path);
    if (!first)
        return false;
    const auto &[field, selectors] = path.steps().back();
    return first->steps().back().field == field &&
           (selectors.size() == 1 || selectors[1].toIndex() == 0);
}

// The key of a block, which is not a field.
FieldPath blockOf(const FieldPath &text) {
    return withoutLastStep(text).field("texts").key(text.steps().back().selectors.front().text);
}

// The keys of the entries that cover a field. The selectors of the first step are the key of an
// entry and its number among equal ones; those of the last one may lead further into a list.
std::vector<FieldPath> keysCovering(const FieldPath &field) {
    const std::size_t size = field.steps().size();
    std::vector<FieldPath> keys;
    for (FieldPath outer = field; !outer.isEmpty(); outer = outer.parent()) {
        const std::size_t last = outer.steps().size() - 1;
        const bool isWhole = outer.steps()[last] == field.steps()[last];
        if (isWhole || (last > 0 && last + 1 == size))
            keys.push_back(outer);
        if (isWhole && isText(outer.steps()[last]))
            keys.push_back(blockOf(outer));
    }
    keys.emplace_back();
    return keys;
}

FieldPath keyOf(const IgnoreComments::Entry &entry) {
    return entry.isBlock ? blockOf(entry.element) : entry.element;
}

} // namespace

IgnoreComments::IgnoreComments(const Tano::PackageInfo &record) {
    if (!Tano::hasComment(record, ignoreMark))
        return;
    const TextBlocks blocks(record);
    for (const Tano::KeptComment &comment : Tano::comments(record)) {
        for (const QString &rule : rulesIn(comment)) {
            m_entries.push_back({rule, comment.before, blocks.beginsAt(comment.before)});
            m_byRule[rule].emplace(keyOf(m_entries.back()), m_entries.size() - 1);
        }
    }
}

bool IgnoreComments::ignores(const QString &rule, const QString &field) {
    const auto entries = m_byRule.constFind(rule);
    if (entries == m_byRule.constEnd())
        return false;
    const FieldPath path = FieldPath::parse(toUtf8(field)).value_or(FieldPath());
    std::size_t first = m_entries.size();
    for (const FieldPath &key : keysCovering(path)) {
        if (const auto found = entries->find(key); found != entries->end())
            first = std::min(first, found->second);
    }
    if (first == m_entries.size())
        return false;
    m_entries[first].isUsed = true;
    return true;
}

IssueFilter notIgnored(const PackageInfoModel &package) {
    const Tano::PackageInfo record = syncedRecord(package);
    if (!Tano::hasComment(record, ignoreMark))
        return {};
    const auto comments = std::make_shared<IgnoreComments>(outlineOf(record));
    if (comments->entries().empty())
        return {};
    return [comments](const Issue &issue) { return !comments->ignores(issue.id, issue.path); };
}

namespace {

using Places = std::vector<FieldPath>;

// The fields before which a comment covers this one, the narrowest first.
Places placesFor(const TextBlocks &blocks, const FieldPath &field) {
    Places places{field};
    if (const auto text = blocks.firstIn(field))
        places.push_back(*text);
    for (FieldPath around = field; !around.isEmpty();) {
        around = around.parent();
        places.push_back(around);
    }
    return places;
}

std::string commentText(const QStringList &rules) {
    return toUtf8(QStringLiteral(" zel-package: ignore ") % rules.join(QStringLiteral(", ")) %
                  u' ');
}

// The position of a comment for a place.
struct Spot {
    FieldPath element;                         // the one that follows
    std::optional<Tano::KeptComment> extended; // the comment that it extends
};
using Spots = std::map<FieldPath, Spot>;

// The spots of places; empty if the record cannot be saved. Finds all at once by adding a comment
// for each place.
Spots spotsOf(const Tano::PackageInfo &record, const std::set<FieldPath> &places) {
    std::string mark = "place ";
    while (Tano::hasComment(record, mark))
        mark += ' ';
    std::vector<Tano::KeptComment> markers;
    std::unordered_map<std::string, FieldPath> placeOf;
    for (const FieldPath &place : places) {
        markers.push_back({mark + std::to_string(markers.size()), {}, place, 0});
        placeOf.emplace(markers.back().text, place);
    }
    Spots spots;
    std::optional<Tano::KeptComment> last;
    for (Tano::KeptComment &comment : Tano::comments(Tano::withComments(record, markers))) {
        const auto place = placeOf.find(comment.text);
        if (place != placeOf.end()) {
            const bool isExtended = last && last->before == comment.before;
            spots[place->second] = {comment.before, isExtended ? last : std::nullopt};
        } else if (!rulesIn(comment).isEmpty()) {
            last = std::move(comment);
        }
    }
    return spots;
}

// The comment for the rules at a spot.
struct Addition {
    QStringList rules;
    std::optional<Tano::KeptComment> extended;
};
using Additions = std::map<FieldPath, Addition>; // by the element that follows

// Adds comments for issues. Only behaviors with issues are written and read again.
class Ignoring {
public:
    explicit Ignoring(const Tano::PackageInfo &record)
        : m_record(record)
        , m_blocks(record)
        , m_comments(record) {}

    // The record with comments; nullopt if all issues are ignored already.
    std::optional<Tano::PackageInfo> operator()(const QVector<Issue> &issues);

private:
    using TurnedOff = std::pair<QString, FieldPath>; // the rule, and the key of an entry

    struct Pending {
        QString rule;
        std::vector<FieldPath> covering;
        Places places;
    };
    std::vector<Pending> pendingOf(const QVector<Issue> &issues);
    void addAt(const Pending &pending, const Spots &spots);
    std::optional<Tano::PackageInfo> withAdditions(const Tano::PackageInfo &record) const;

    const Tano::PackageInfo &m_record;
    TextBlocks m_blocks;
    IgnoreComments m_comments;
    std::unordered_set<std::string> m_behaviors; // the paths of those with issues
    std::set<TurnedOff> m_off;
    Additions m_additions;
};

std::vector<Ignoring::Pending> Ignoring::pendingOf(const QVector<Issue> &issues) {
    std::vector<Pending> all;
    for (const Issue &issue : issues) {
        if (m_comments.ignores(issue.id, issue.path))
            continue;
        const FieldPath field = FieldPath::parse(toUtf8(issue.path)).value_or(FieldPath());
        all.push_back({issue.id, keysCovering(field), placesFor(m_blocks, field)});
        if (!field.isEmpty() && !field.steps().front().selectors.empty())
            m_behaviors.insert(field.steps().front().selectors.front().text);
    }
    return all;
}

// Adds to the comment at the narrowest place that covers the field, unless a wider one was added.
void Ignoring::addAt(const Pending &pending, const Spots &spots) {
    const auto &[rule, covering, places] = pending;
    for (const FieldPath &key : covering) {
        if (m_off.count({rule, key}) > 0)
            return;
    }
    for (const FieldPath &place : places) {
        const auto spot = spots.find(place);
        if (spot == spots.end())
            continue;
        const FieldPath &element = spot->second.element;
        const FieldPath key = keyOf({rule, element, m_blocks.beginsAt(element)});
        if (std::find(covering.begin(), covering.end(), key) == covering.end())
            continue;
        m_off.emplace(rule, key);
        Addition &addition = m_additions[element];
        addition.rules += rule;
        addition.extended = spot->second.extended;
        return;
    }
}

// Returns nullopt if a comment cannot be written.
std::optional<Tano::PackageInfo> Ignoring::withAdditions(const Tano::PackageInfo &record) const {
    std::vector<Tano::KeptComment> removed;
    std::vector<Tano::KeptComment> added;
    for (const auto &[element, addition] : m_additions) {
        const auto &[rules, extended] = addition;
        if (extended)
            removed.push_back(*extended);
        const QStringList before = extended ? rulesIn(*extended) : QStringList();
        added.push_back({commentText(before + rules), {}, element, 0});
    }
    const auto base = removed.empty() ? record : Tano::withoutComments(record, removed);
    const auto changed = Tano::withComments(base, added);
    return changed == base ? std::nullopt : std::optional(changed);
}

std::optional<Tano::PackageInfo> Ignoring::operator()(const QVector<Issue> &issues) {
    const auto all = pendingOf(issues);
    std::set<FieldPath> places;
    for (const Pending &pending : all)
        places.insert(pending.places.begin(), pending.places.end());
    if (all.empty() || m_record.saveToManifestContent().empty())
        return {};
    const auto isWanted = [&](const auto &each) { return m_behaviors.count(each.path()) > 0; };
    const Tano::PackageInfo reduced = withContentOf(m_record, isWanted);
    const Spots spots = spotsOf(reduced, places);
    for (const Pending &pending : all)
        addAt(pending, spots);
    auto changed = withAdditions(reduced);
    for (std::size_t i = 0; changed && i < m_record.behaviors().size(); ++i) {
        if (!isWanted(m_record.behaviors()[i]))
            changed->replaceBehavior(int(i), m_record.behaviors()[i]);
    }
    return changed;
}

} // namespace

Edits ignoringEdits(const PackageInfoModel *package, const QVector<Issue> &issues) {
    if (!package)
        return {};
    const Tano::PackageInfo record = syncedRecord(*package);
    const auto changed = Ignoring(record)(issues);
    return changed ? Edits{{Edit::Action::Set, {}, *changed}} : Edits();
}

} // namespace Zel::PackageModel
