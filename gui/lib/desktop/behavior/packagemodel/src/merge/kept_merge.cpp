#include "kept_merge.h"

#include "../checks/further_checks.h"

#include <packagemodel/text_conversion.h>

#include <tano/kept_content.h>

#include <algorithm>
#include <map>

namespace Zel::PackageModel {
namespace {

using Tano::FieldPath;
using Tano::KeptComment;
using Tano::PackageInfo;
using Tano::UnknownNode;

// How many comments with a text each side has. Comments are known by their texts alone, since what
// comes behind one changes with the fields.
using Counts = std::map<std::string, int>;

Counts countsOf(const std::vector<KeptComment> &comments) {
    Counts counts;
    for (const KeptComment &comment : comments)
        ++counts[comment.text];
    return counts;
}

// How many more comments with a text there have to be, or fewer if the number is negative.
Counts missingOf(const Sides<std::vector<KeptComment>> &comments,
                 const std::vector<KeptComment> &merged) {
    const Sides<Counts> counts = mapped(comments, countsOf);
    Counts present = countsOf(merged);
    Counts missing;
    for (const Counts *side : {&counts.base, &counts.theirs}) {
        for (const auto &each : *side) {
            const auto of = [&](const Counts &all) {
                const auto found = all.find(each.first);
                return found == all.end() ? 0 : found->second;
            };
            const int change = of(counts.theirs) - of(counts.base);
            const int done = of(present) - of(counts.base);
            missing[each.first] = change > 0 ? std::max(0, change - std::max(0, done))
                                             : std::min(0, change - std::min(0, done));
        }
    }
    return missing;
}

bool hasComment(const std::vector<KeptComment> &comments, const std::string &text,
                const FieldPath &before) {
    return std::any_of(comments.begin(), comments.end(), [&](const KeptComment &each) {
        return each.text == text && each.before == before;
    });
}

void mergeComments(const Sides<PackageInfo> &records, const FieldMerge &merge,
                   PackageInfo &merged) {
    const auto comments =
        mapped(records, [](const PackageInfo &record) { return Tano::comments(record); });
    const auto present = Tano::comments(merged);
    Counts missing = missingOf(comments, present);

    std::vector<KeptComment> theirs = comments.theirs;
    for (KeptComment &comment : theirs)
        comment.before = merge.placeOf(comment.before);
    std::vector<KeptComment> removed;
    for (const KeptComment &comment : present) {
        if (missing[comment.text] < 0 && !hasComment(theirs, comment.text, comment.before)) {
            removed.push_back(comment);
            ++missing[comment.text];
        }
    }
    std::vector<KeptComment> added;
    for (const KeptComment &comment : theirs) {
        if (missing[comment.text] > 0 && !hasComment(present, comment.text, comment.before)) {
            added.push_back(comment);
            --missing[comment.text];
        }
    }
    if (!removed.empty())
        merged = Tano::withoutComments(merged, removed);
    if (!added.empty())
        merged = Tano::withComments(merged, added);
}

bool isAmong(const std::vector<UnknownNode> &nodes, const UnknownNode &node) {
    return std::any_of(nodes.begin(), nodes.end(), [&](const UnknownNode &each) {
        return each.kind == node.kind && each.name == node.name && each.parent == node.parent &&
               each.parentPath == node.parentPath && each.index == node.index;
    });
}

void reportUnknownNodes(const Sides<PackageInfo> &records, const PackageInfo &merged,
                        FieldMerge &merge) {
    const auto added = Tano::unknownNodes(records.theirs);
    if (added.empty())
        return;
    const auto known = Tano::unknownNodes(records.base);
    const auto present = Tano::unknownNodes(merged);
    for (UnknownNode node : added) {
        if (isAmong(known, node))
            continue;
        node.parentPath = merge.placeOf(node.parentPath);
        const bool isElement = node.kind == UnknownNode::Kind::Element;
        if (!isAmong(present, node))
            merge.addConflict(node.parentPath,
                              {QJsonValue::Undefined, QJsonValue::Undefined,
                               isElement ? QString(u'<' + fromUtf8(node.name) + u'>')
                                         : QString(fromUtf8(node.name) + u'=')});
    }
}

// A text in quotation marks, at most so long that a comment can hold two.
std::string quoted(const QString &text) {
    constexpr int mostCharacters = 50000;
    if (text.isNull())
        return "none";
    const QString shown =
        text.size() <= mostCharacters ? text : text.left(mostCharacters) + QStringLiteral("...");
    return '"' + toUtf8(shown) + '"';
}

} // namespace

void mergeKeptContent(const Sides<PackageInfo> &records, FieldMerge &merge, PackageInfo &merged) {
    mergeComments(records, merge, merged);
    reportUnknownNodes(records, merged, merge);
}

PackageInfo withConflictComments(const PackageInfo &record,
                                 const QVector<MergeConflict> &conflicts) {
    std::vector<KeptComment> comments;
    for (const MergeConflict &conflict : conflicts)
        comments.push_back({' ' + std::string(conflictMark) + " in " +
                                (conflict.path.isEmpty() ? "package" : conflict.path.toString()) +
                                ": ours " + quoted(conflict.ours) + ", theirs " +
                                quoted(conflict.theirs) + ' ',
                            {},
                            conflict.path,
                            0});
    return comments.empty() ? record : Tano::withComments(record, comments);
}

} // namespace Zel::PackageModel
