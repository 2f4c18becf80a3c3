#include "kept_merge.h"

#include "../checks/further_checks.h"

#include <packagemodel/text_conversion.h>

#include <tano/kept_content.h>

#include <algorithm>
#include <map>
#include <string_view>
#include <tuple>

namespace Zel::PackageModel {
namespace {

using Tano::FieldPath;
using Tano::KeptComment;
using Tano::KeptNode;
using Tano::PackageInfo;
using Tano::UnknownNode;

// How often each comment occurs. Comments are identified by text alone, since what follows them
// changes with the fields.
using Counts = std::map<std::string, int>;

Counts countsOf(const std::vector<KeptComment> &comments) {
    Counts counts;
    for (const KeptComment &comment : comments)
        ++counts[comment.text];
    return counts;
}

// How many more comments of each text are needed; negative if fewer.
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

// Unknown elements or attributes with one name in one element, which an author sees as a unit.
using NodeGroup = std::tuple<FieldPath, std::string, std::string, UnknownNode::Kind, std::string>;
using NodesByGroup = std::map<NodeGroup, std::vector<KeptNode>>;

NodesByGroup groupsOf(const std::vector<KeptNode> &nodes) {
    NodesByGroup groups;
    for (const KeptNode &node : nodes)
        groups[{node.parentPath, node.parent, node.language, node.kind, node.name}].push_back(node);
    return groups;
}

// The nodes that the other list lacks, compared by their XML.
std::vector<KeptNode> without(std::vector<KeptNode> nodes, const std::vector<KeptNode> &others) {
    for (const KeptNode &other : others) {
        const auto same = std::find_if(nodes.begin(), nodes.end(),
                                       [&](const KeptNode &each) { return each.xml == other.xml; });
        if (same != nodes.end())
            nodes.erase(same);
    }
    return nodes;
}

constexpr std::string_view declarationStart = "xmlns:";

// Whether a node is a namespace declaration.
bool isDeclaration(const KeptNode &node) {
    return node.name.compare(0, declarationStart.size(), declarationStart) == 0;
}

// Whether a node may use a prefix, judged from its text.
bool mayUse(const KeptNode &node, const std::string &prefix) {
    return node.xml.find('<' + prefix + ':') != std::string::npos ||
           node.xml.find(' ' + prefix + ':') != std::string::npos;
}

// Merges their changes to a group of unknown elements and attributes. Nodes that theirs removed
// without a replacement are kept, since their whole parent may be gone.
class NodeMerge {
public:
    NodeMerge(const PackageInfo &base, const PackageInfo &merged, FieldMerge &merge)
        : m_base(groupsOf(Tano::keptNodes(base)))
        , m_merged(groupsOf(Tano::keptNodes(merged)))
        , m_merge(merge) {}

    void add(const NodeGroup &group, const std::vector<KeptNode> &theirs) {
        const auto &base = m_base[group];
        NodeGroup place = group;
        auto &path = std::get<FieldPath>(place);
        path = m_merge.placeOf(path);
        const auto &present = m_merged[place];
        auto gone = without(base, theirs);
        for (KeptNode node : without(without(theirs, base), without(present, base))) {
            node.parentPath = path;
            if (!addNode(node, present, gone))
                addConflict(node, present);
        }
    }

    void finish(PackageInfo &merged) {
        if (m_added.empty())
            return;
        const auto changed = Tano::withKeptNodes(merged, m_removed, m_added);
        merged = changed.package;
        for (const KeptNode &node : changed.left)
            addConflict(node, {});
    }

private:
    // Lets a new node replace one that theirs no longer has. Returns false if ours has changed that
    // one, or has another attribute of the same name.
    bool addNode(const KeptNode &node, const std::vector<KeptNode> &present,
                 std::vector<KeptNode> &gone) {
        const bool usesOtherNamespace =
            std::any_of(m_otherPrefixes.begin(), m_otherPrefixes.end(),
                        [&](const std::string &prefix) { return mayUse(node, prefix); });
        if (usesOtherNamespace)
            return false;
        if (!gone.empty()) {
            const auto old = std::find_if(present.begin(), present.end(), [&](const auto &each) {
                return each.xml == gone.back().xml;
            });
            if (old == present.end())
                return false;
            m_removed.push_back(*old);
            gone.pop_back();
        } else if (node.kind == UnknownNode::Kind::Attribute && !present.empty()) {
            return false;
        }
        m_added.push_back(node);
        return true;
    }

    void addConflict(const KeptNode &node, const std::vector<KeptNode> &present) {
        const auto shown = [](const KeptNode &each) { return fromUtf8(each.xml).trimmed(); };
        const QJsonValue ours =
            present.empty() ? QJsonValue(QJsonValue::Undefined) : shown(present.back());
        m_merge.addConflict(node.parentPath, {QJsonValue::Undefined, ours, shown(node)});
        if (isDeclaration(node))
            m_otherPrefixes.push_back(node.name.substr(declarationStart.size()));
    }

    NodesByGroup m_base;
    NodesByGroup m_merged;
    FieldMerge &m_merge;
    std::vector<std::string> m_otherPrefixes; // bound to another namespace in theirs
    std::vector<KeptNode> m_removed;
    std::vector<KeptNode> m_added;
};

void mergeNodes(const Sides<PackageInfo> &records, FieldMerge &merge, PackageInfo &merged) {
    const auto theirs = groupsOf(Tano::keptNodes(records.theirs));
    if (theirs.empty())
        return;
    NodeMerge nodes(records.base, merged, merge);
    for (const bool areDeclarations : {true, false}) {
        for (const auto &[group, ofGroup] : theirs) {
            if (isDeclaration(ofGroup.front()) == areDeclarations)
                nodes.add(group, ofGroup);
        }
    }
    nodes.finish(merged);
}

// Quotes a text, shortened so that a comment can hold two.
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
    mergeNodes(records, merge, merged);
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
