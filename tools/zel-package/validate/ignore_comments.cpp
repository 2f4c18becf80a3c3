#include "ignore_comments.h"

#include "report_rules.h"

#include <packagemodel/text_conversion.h>

#include <tano/behavior_info.h>
#include <tano/kept_content.h>

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace ZelPackage {
namespace {

using Tano::FieldPath;
using Zel::PackageModel::Severity;

// The fields of a text block, in canonical order.
constexpr std::array<const char *, 5> textFields{"names", "descriptions", "tags",
                                                 "triggerSentences", "loadingResponses"};

// The rule ids in a comment; empty for other comments.
QStringList rulesIn(const Tano::KeptComment &comment) {
    static const QRegularExpression form(
        QRegularExpression::anchoredPattern(QStringLiteral("\\s*zel-package:\\s*ignore\\b(.*)")),
        QRegularExpression::DotMatchesEverythingOption);
    const auto match = form.match(Zel::fromUtf8(comment.text));
    QStringList rules;
    if (match.hasMatch()) {
        const auto words = match.captured(1).split(u',');
        for (const QString &word : words)
            rules += word.trimmed();
    }
    return rules;
}

// Whether the text block of a language has a name and a description.
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

// Whether a path leads to the first text in its block.
bool beginsBlock(const Tano::PackageInfo &record, const FieldPath &path) {
    if (path.isEmpty() || path.steps().back().selectors.empty())
        return false;
    const auto &[field, selectors] = path.steps().back();
    const auto name = std::find(textFields.begin(), textFields.end(), field);
    if (name == textFields.end() || (selectors.size() > 1 && selectors[1].toIndex() != 0))
        return false;
    const auto texts = textsOf(record, path, selectors.front().text);
    return std::find(texts.begin(), texts.end(), true) - texts.begin() == name - textFields.begin();
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
            m_byRule[rule].push_back(m_ignored.size());
            m_ignored.push_back({rule, comment.before, isBlock});
        }
    }
}

bool IgnoreComments::ignores(const QString &rule, const QString &field) {
    const auto indexes = m_byRule.constFind(rule);
    if (indexes == m_byRule.constEnd())
        return false;
    const FieldPath path = FieldPath::parse(Zel::toUtf8(field)).value_or(FieldPath());
    const auto found = std::find_if(indexes->begin(), indexes->end(), [&](std::size_t index) {
        return covers(m_ignored[index], path);
    });
    if (found == indexes->end())
        return false;
    m_ignored[*found].isUsed = true;
    return true;
}

// Selectors of the first step are an entry's key and its index among equal keys; further selectors
// of `field` may select within a list.
bool IgnoreComments::covers(const Ignored &ignored, const FieldPath &field) {
    const auto &outer = ignored.element.steps();
    const auto &inner = field.steps();
    if (outer.empty())
        return true;
    if (inner.size() < outer.size() || !std::equal(outer.begin(), outer.end() - 1, inner.begin()))
        return false;
    const auto &[name, selectors] = outer.back();
    const auto &[innerName, innerSelectors] = inner[outer.size() - 1];
    if (ignored.isBlock)
        return std::count(textFields.begin(), textFields.end(), innerName) > 0 &&
               !innerSelectors.empty() && innerSelectors.front() == selectors.front();
    const bool isExact = outer.size() == 1 || inner.size() > outer.size();
    return name == innerName && innerSelectors.size() >= selectors.size() &&
           std::equal(selectors.begin(), selectors.end(), innerSelectors.begin()) &&
           (!isExact || innerSelectors.size() == selectors.size());
}

std::vector<ManifestFinding> IgnoreComments::findings() const {
    const QStringList known = changeableRuleIds();
    std::vector<ManifestFinding> findings;
    for (const Ignored &ignored : m_ignored) {
        const QString field = Zel::fromUtf8(ignored.element.toString());
        if (!known.contains(ignored.rule))
            findings.push_back({{},
                                ignoreUnknownRuleId,
                                Severity::Warning,
                                field,
                                unknownRule(ignored.rule, known)});
        else if (!ignored.isUsed)
            findings.push_back({{},
                                ignoreUnusedRuleId,
                                Severity::Note,
                                field,
                                messageOf(ignoreUnusedRuleId).arg(ignored.rule)});
    }
    return findings;
}

} // namespace ZelPackage
