#pragma once

#include "manifest_format.h"

#include <tano/manifest_reader.h>

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Tano {

/// Sets the index of each node: the number of equal nodes before it.
void countEqual(std::vector<UnknownNode> &nodes);

/// The positions of a manifest's elements and of its unknown elements and attributes.
///
/// Reading appends one small node per element. The lookup index is built on the first lookup, and
/// the children of an element are sorted when one of them is first looked up.
class FieldPositions {
public:
    using NodeId = std::uint32_t;

    /// Adds an element below `parent`; the first one is the root, for which `parent` is ignored.
    NodeId add(NodeId parent, Element element, const std::string &key, SourcePosition position);
    void addUnknown(NodeId parent, UnknownNode::Kind kind, const std::string &name,
                    SourcePosition position);

    /// The position of a field, or of the nearest enclosing element.
    SourcePosition find(const FieldPath &path) const;
    std::vector<UnknownNode> unknownNodes() const;

private:
    // Texts in fixed-size chunks, addressed by offset, so that growing moves nothing.
    class TextPieces {
    public:
        std::uint32_t add(std::string_view text);
        std::string_view at(std::uint32_t offset, std::uint32_t size) const;

    private:
        std::vector<std::string> m_pieces;
    };

    struct Node {
        NodeId parent;
        std::uint32_t key; // in m_texts
        std::uint32_t line;
        std::uint32_t column;
        std::uint16_t keySize;
        Element element;
    };
    static_assert(ManifestReader::maxKeyLength <= 0xFFFF);
    struct Unknown {
        NodeId parent;
        std::uint32_t name; // in m_texts
        std::uint32_t nameSize;
        std::uint32_t line;
        std::uint32_t column;
        UnknownNode::Kind kind;
    };
    // Siblings of the same kind with the same key.
    struct Siblings {
        const NodeId *first = nullptr;
        int count = 0;
    };

    std::string_view keyOf(const Node &node) const { return m_texts.at(node.key, node.keySize); }
    using Children = std::pair<std::vector<NodeId>::iterator, std::vector<NodeId>::iterator>;

    void buildIndex() const;
    Children children(NodeId parent) const;
    Siblings siblings(NodeId parent, Element element, std::string_view key) const;
    NodeId child(NodeId parent, const FieldPath::Step &step) const;
    NodeId block(NodeId parent, const FieldPath::Step &step) const;
    NodeId entry(NodeId parent, Element element, const FieldPath::Step &step,
                 std::size_t used) const;
    FieldPath pathOf(NodeId node) const;

    // Deques grow without moving their contents, which would double the peak memory.
    std::deque<Node> m_nodes;
    std::deque<Unknown> m_unknown;
    TextPieces m_texts;
    // Built on the first lookup.
    mutable std::vector<NodeId> m_index;  // ordered by parent
    mutable std::vector<NodeId> m_ends;   // per node, the end of its children in m_index
    mutable std::vector<bool> m_isSorted; // whether the children of a node are sorted
};

} // namespace Tano
