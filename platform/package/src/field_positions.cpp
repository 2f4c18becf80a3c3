#include "field_positions.h"

#include <algorithm>
#include <limits>
#include <map>
#include <optional>
#include <tuple>

namespace Tano {
namespace {

constexpr FieldPositions::NodeId noNode = std::numeric_limits<FieldPositions::NodeId>::max();

// Larger than the longest text, a name in a tag; the offsets of all pieces fit into 32 bits.
constexpr std::size_t pieceSize = std::size_t(1) << 20;
static_assert(ManifestReader::maxTagLength <= pieceSize);
static_assert(ManifestReader::maxFileSize <= std::size_t(1) << 31);

std::uint32_t bounded(std::uint64_t count) {
    return std::uint32_t(std::min<std::uint64_t>(count, std::numeric_limits<std::uint32_t>::max()));
}

// The child element that a path step may name, or Element::None.
Element childWithField(Element parent, std::string_view field) {
    for (const Element child : ruleOf(parent).children) {
        if (ruleOf(child).field == field)
            return child;
    }
    return Element::None;
}

} // namespace

void countEqual(std::vector<UnknownNode> &nodes) {
    std::map<std::tuple<UnknownNode::Kind, std::string_view, std::string_view, FieldPath>, int>
        counts;
    for (UnknownNode &node : nodes)
        node.index = counts[{node.kind, node.name, node.parent, node.parentPath}]++;
}

std::uint32_t FieldPositions::TextPieces::add(std::string_view text) {
    if (m_pieces.empty() || m_pieces.back().size() + text.size() > pieceSize)
        m_pieces.emplace_back();
    std::string &piece = m_pieces.back();
    const std::size_t offset = (m_pieces.size() - 1) * pieceSize + piece.size();
    piece += text;
    return std::uint32_t(offset);
}

std::string_view FieldPositions::TextPieces::at(std::uint32_t offset, std::uint32_t size) const {
    if (size == 0)
        return {};
    return std::string_view(m_pieces[offset / pieceSize]).substr(offset % pieceSize, size);
}

FieldPositions::NodeId FieldPositions::add(NodeId parent, Element element, const std::string &key,
                                           SourcePosition position) {
    m_nodes.push_back({parent, key.empty() ? 0 : m_texts.add(key), bounded(position.line),
                       bounded(position.column), std::uint16_t(key.size()), element});
    return NodeId(m_nodes.size() - 1);
}

void FieldPositions::addUnknown(NodeId parent, UnknownNode::Kind kind, const std::string &name,
                                SourcePosition position) {
    m_unknown.push_back({parent, m_texts.add(name), std::uint32_t(name.size()),
                         bounded(position.line), bounded(position.column), kind});
}

void FieldPositions::buildIndex() const {
    if (m_index.size() == m_nodes.size())
        return;
    std::vector<NodeId> ends(m_nodes.size() + 1, 1);
    for (auto node = m_nodes.begin() + 1; node != m_nodes.end(); ++node)
        ++ends[node->parent + 1];
    for (std::size_t i = 1; i < ends.size(); ++i)
        ends[i] += ends[i - 1] - 1;
    m_index.resize(m_nodes.size());
    NodeId id = 1;
    for (auto node = m_nodes.begin() + 1; node != m_nodes.end(); ++node)
        m_index[ends[node->parent]++] = id++;
    m_ends = std::move(ends);
    m_isSorted.assign(m_nodes.size(), false);
}

FieldPositions::Children FieldPositions::children(NodeId parent) const {
    const Children children{m_index.begin() + (parent == 0 ? 1 : m_ends[parent - 1]),
                            m_index.begin() + m_ends[parent]};
    if (m_isSorted[parent])
        return children;
    std::sort(children.first, children.second, [this](NodeId a, NodeId b) {
        const Node &x = m_nodes[a];
        const Node &y = m_nodes[b];
        if (x.element != y.element)
            return x.element < y.element;
        const int order = keyOf(x).compare(keyOf(y));
        return order != 0 ? order < 0 : a < b;
    });
    m_isSorted[parent] = true;
    return children;
}

FieldPositions::Siblings FieldPositions::siblings(NodeId parent, Element element,
                                                  std::string_view key) const {
    const auto [begin, end] = children(parent);
    const auto wanted = std::make_tuple(element, key);
    const auto groupOf = [this](NodeId id) {
        const Node &node = m_nodes[id];
        return std::make_tuple(node.element, keyOf(node));
    };
    const auto first = std::lower_bound(
        begin, end, wanted, [&](NodeId id, const auto &group) { return groupOf(id) < group; });
    const auto last = std::upper_bound(
        first, end, wanted, [&](const auto &group, NodeId id) { return group < groupOf(id); });
    return {m_index.data() + (first - m_index.begin()), int(last - first)};
}

// The text block that holds, or would hold, the text that a step names.
FieldPositions::NodeId FieldPositions::block(NodeId parent, const FieldPath::Step &step) const {
    if (step.selectors.empty())
        return noNode;
    for (const Element kind : ruleOf(m_nodes[parent].element).children) {
        if (!isTextsBlock(kind) || childWithField(kind, step.field) == Element::None)
            continue;
        const Siblings blocks = siblings(parent, kind, step.selectors[0].text);
        return blocks.count == 0 ? noNode : *blocks.first;
    }
    return noNode;
}

// The child of a kind that a step selects, ignoring its first `used` selectors.
FieldPositions::NodeId FieldPositions::entry(NodeId parent, Element element,
                                             const FieldPath::Step &step, std::size_t used) const {
    const ElementRule &rule = ruleOf(element);
    const auto &selectors = step.selectors;
    std::string_view key;
    if (rule.keyAttribute >= 0) {
        if (used == selectors.size())
            return noNode;
        key = selectors[used++].text;
    }
    std::optional<int> index;
    if (used < selectors.size())
        index = selectors[used].toIndex();
    else if (rule.occurs != Occurs::AnyTimes || isEntry(element))
        index = 0;
    const Siblings all = siblings(parent, element, key);
    return index && *index < all.count ? all.first[*index] : noNode;
}

FieldPositions::NodeId FieldPositions::child(NodeId parent, const FieldPath::Step &step) const {
    const Element element = childWithField(m_nodes[parent].element, step.field);
    return element == Element::None ? noNode : entry(parent, element, step, 0);
}

SourcePosition FieldPositions::find(const FieldPath &path) const {
    if (m_nodes.empty())
        return {};
    buildIndex();
    NodeId found = 0;
    for (const FieldPath::Step &step : path.steps()) {
        NodeId next = child(found, step);
        if (next == noNode) {
            const NodeId texts = block(found, step);
            if (texts == noNode)
                break;
            found = texts;
            const Element text = childWithField(m_nodes[texts].element, step.field);
            next = entry(texts, text, step, 1);
            if (next == noNode)
                break;
        }
        found = next;
    }
    return {m_nodes[found].line, m_nodes[found].column};
}

FieldPath FieldPositions::pathOf(NodeId id) const {
    if (id == 0)
        return {};
    const Node &node = m_nodes[id];
    const std::string_view key = keyOf(node);
    const Node &parent = m_nodes[node.parent];
    const bool isText = isTextsBlock(parent.element);
    FieldPath path = pathOf(isText ? parent.parent : node.parent);
    const Siblings all = siblings(node.parent, node.element, key);
    const auto index = std::lower_bound(all.first, all.first + all.count, id) - all.first;
    appendField(path, node.element, key, int(index), isText ? keyOf(parent) : std::string_view());
    return path;
}

std::vector<UnknownNode> FieldPositions::unknownNodes() const {
    if (m_nodes.empty())
        return {};
    buildIndex();
    std::vector<UnknownNode> nodes;
    nodes.reserve(m_unknown.size());
    for (const Unknown &unknown : m_unknown) {
        nodes.push_back({unknown.kind,
                         std::string(m_texts.at(unknown.name, unknown.nameSize)),
                         std::string(ruleOf(m_nodes[unknown.parent].element).name),
                         pathOf(unknown.parent),
                         {unknown.line, unknown.column},
                         0});
    }
    countEqual(nodes);
    return nodes;
}

} // namespace Tano
