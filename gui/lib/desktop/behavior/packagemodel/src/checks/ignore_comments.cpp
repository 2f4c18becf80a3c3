#include <packagemodel/ignore_comments.h>

#include <packagemodel/package_info_model.h>
#include <packagemodel/text_conversion.h>

#include <tano/behavior_info.h>
#include <tano/kept_content.h>

#include <QRegularExpression>
#include <QStringBuilder>
#include <QStringList>

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <utility>

namespace Zel::PackageModel {
namespace {

using Tano::FieldPath;

// The fields of a block of texts, in the order of writing.
constexpr std::array<const char *, 5> textFields{"names", "descriptions", "tags",
                                                 "triggerSentences", "loadingResponses"};

// The ids in a comment; nothing for a comment of another kind.
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

// Whether the block of the last step's language has such texts.
template<typename Owner>
std::array<bool, 2> ownTexts(const Owner &owner, const std::string &code) {
    return {owner.names().count(code) > 0, owner.descriptions().count(code) > 0};
}

std::array<bool, textFields.size()> textsOf(const Tano::PackageInfo &record, const FieldPath &path,
                                            const std::string &code) {
    if (path.steps().size() == 1) {
        const auto [hasName, hasDescription] = ownTexts(record, code);
        return {hasName, hasDescription};
    }
    const auto &entry = path.steps().front().selectors;
    int occurrence = entry.size() > 1 ? entry[1].toIndex().value_or(0) : 0;
    for (const Tano::BehaviorInfo &behavior : record.behaviors()) {
        if (behavior.path() != entry.front().text || occurrence-- > 0)
            continue;
        const auto [hasName, hasDescription] = ownTexts(behavior, code);
        return {hasName, hasDescription, behavior.languagesToTags().count(code) > 0,
                behavior.languagesToTriggerSentences().count(code) > 0, true};
    }
    return {};
}

// Of a text, the first one in its block; nothing for another field.
std::optional<FieldPath> firstInBlock(const Tano::PackageInfo &record, const FieldPath &path) {
    if (path.isEmpty() || path.steps().back().selectors.empty())
        return {};
    const auto &[field, selectors] = path.steps().back();
    if (std::find(textFields.begin(), textFields.end(), field) == textFields.end())
        return {};
    const auto texts = textsOf(record, path, selectors.front().text);
    const auto first = std::find(texts.begin(), texts.end(), true) - texts.begin();
    if (std::size_t(first) == texts.size())
        return {};
    FieldPath text = path;
    while (text.steps().size() == path.steps().size())
        text = text.parent();
    return text.field(textFields[std::size_t(first)]).key(selectors.front().text);
}

bool beginsBlock(const Tano::PackageInfo &record, const FieldPath &path) {
    const auto first = firstInBlock(record, path);
    if (!first)
        return false;
    const auto &[field, selectors] = path.steps().back();
    return first->steps().back().field == field &&
           (selectors.size() == 1 || selectors[1].toIndex() == 0);
}

// The selectors of the first step are the key of an entry and its number among equal ones; those of
// others may lead further into a list.
bool covers(const IgnoreComments::Entry &entry, const FieldPath &field) {
    const auto &outer = entry.element.steps();
    const auto &inner = field.steps();
    if (outer.empty())
        return true;
    if (inner.size() < outer.size() || !std::equal(outer.begin(), outer.end() - 1, inner.begin()))
        return false;
    const auto &[name, selectors] = outer.back();
    const auto &[innerName, innerSelectors] = inner[outer.size() - 1];
    if (entry.isBlock)
        return std::count(textFields.begin(), textFields.end(), innerName) > 0 &&
               !innerSelectors.empty() && innerSelectors.front() == selectors.front();
    const bool isExact = outer.size() == 1 || inner.size() > outer.size();
    return name == innerName && innerSelectors.size() >= selectors.size() &&
           std::equal(selectors.begin(), selectors.end(), innerSelectors.begin()) &&
           (!isExact || innerSelectors.size() == selectors.size());
}

} // namespace

IgnoreComments::IgnoreComments(const Tano::PackageInfo &record) {
    if (!Tano::hasComment(record, "zel-package:"))
        return;
    for (const Tano::KeptComment &comment : Tano::comments(record)) {
        const QStringList rules = rulesIn(comment);
        if (rules.isEmpty())
            continue;
        const bool isBlock = beginsBlock(record, comment.before);
        for (const QString &rule : rules) {
            m_byRule[rule].push_back(m_entries.size());
            m_entries.push_back({rule, comment.before, isBlock});
        }
    }
}

bool IgnoreComments::ignores(const QString &rule, const QString &field) {
    const auto indexes = m_byRule.constFind(rule);
    if (indexes == m_byRule.constEnd())
        return false;
    const FieldPath path = FieldPath::parse(toUtf8(field)).value_or(FieldPath());
    const auto found = std::find_if(indexes->begin(), indexes->end(), [&](std::size_t index) {
        return covers(m_entries[index], path);
    });
    if (found == indexes->end())
        return false;
    m_entries[*found].isUsed = true;
    return true;
}

IssueFilter notIgnored(const PackageInfoModel &package) {
    const auto comments = std::make_shared<IgnoreComments>(package.packageInfo());
    if (comments->entries().empty())
        return {};
    return [comments](const Issue &issue) { return !comments->ignores(issue.id, issue.path); };
}

namespace {

// Where a comment may ignore a field, the narrowest place first.
std::vector<FieldPath> placesFor(const Tano::PackageInfo &record, const FieldPath &field) {
    std::vector<FieldPath> places{field};
    if (const auto text = firstInBlock(record, field))
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

// With one comment where a comment for a rule follows another one before the same element.
Tano::PackageInfo joined(const Tano::PackageInfo &record, const QString &rule) {
    std::vector<Tano::KeptComment> comments = Tano::comments(record);
    const auto isOther = [](const auto &comment) { return rulesIn(comment).isEmpty(); };
    comments.erase(std::remove_if(comments.begin(), comments.end(), isOther), comments.end());
    const auto pair = std::adjacent_find(
        comments.begin(), comments.end(), [&](const auto &first, const auto &second) {
            return first.before == second.before && second.text == commentText({rule});
        });
    if (pair == comments.end())
        return record;
    return Tano::withComment(Tano::withoutComments(record, {*pair, *(pair + 1)}), pair->before,
                             commentText(rulesIn(*pair) + QStringList{rule}));
}

// Nothing if the issue is ignored already, or the record cannot be saved.
std::optional<Tano::PackageInfo> ignoring(const Tano::PackageInfo &record, const Issue &issue) {
    if (IgnoreComments(record).ignores(issue.id, issue.path))
        return {};
    const auto field = FieldPath::parse(toUtf8(issue.path));
    for (const FieldPath &place : placesFor(record, field.value_or(FieldPath()))) {
        const auto changed = Tano::withComment(record, place, commentText({issue.id}));
        if (IgnoreComments(changed).ignores(issue.id, issue.path))
            return joined(changed, issue.id);
    }
    return {};
}

} // namespace

Edits ignoringEdits(const PackageInfoModel *package, const QVector<Issue> &issues) {
    if (!package)
        return {};
    Tano::PackageInfo record = package->packageInfo();
    bool isChanged = false;
    for (const Issue &issue : issues) {
        if (auto changed = ignoring(record, issue)) {
            record = std::move(*changed);
            isChanged = true;
        }
    }
    return isChanged ? Edits{{Edit::Action::Set, {}, record}} : Edits();
}

} // namespace Zel::PackageModel
