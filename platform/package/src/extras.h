#pragma once

#include "manifest_format.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Tano {

struct Extras;
using ExtrasPointer = std::shared_ptr<const Extras>;

/// What a manifest holds in one element beyond the record's fields. Most elements have none.
struct Extras {
    /// A comment, a processing instruction or an element that this version does not know, and the
    /// child before which it stands. Within a text, the position's index is a byte offset.
    struct Kept {
        Position before;
        std::string xml;
    };
    /// One list of children of the same kind: the kind, and the key that they share.
    using ListId = std::pair<Element, std::string>;

    std::vector<std::pair<std::string, std::string>> attributes; // unknown ones, in file order
    std::vector<Kept> kept;                                      // in file order
    std::map<Position, ExtrasPointer> children; // of those that have no record of their own
    /// What told the entries of each list apart when they were read; it finds the children again
    /// that the extras speak of, after the list has been edited.
    std::map<ListId, std::vector<std::string>> lists;
};

/// Gives what tells the entries of a list apart now.
using ListKeys = std::function<std::vector<std::string>(const Extras::ListId &)>;

/// Remembers in `extras` the present entries of every list that it speaks of.
void rememberLists(Extras &extras, const ListKeys &listKeys);

/// Drops what was kept within the children of a kind that have other keys than `keys`.
void dropForeign(ExtrasPointer &extras, Element element, const std::vector<std::string> &keys);

/// Walks the extras of an element while its children are written in the canonical order.
class ExtrasWalk {
public:
    ExtrasWalk(const Extras *extras, const ListKeys &listKeys);

    /// Calls `write(xml)` for all that stands before the child at `element`, `key`, `index`, and
    /// has not been written yet.
    template<typename Write>
    void before(Element element, const std::string &key, int index, Write &&write) {
        if (m_next == m_kept.size())
            return;
        const Position position{element, key, index};
        for (; m_next < m_kept.size() && !(position < m_kept[m_next].first); ++m_next)
            write(*m_kept[m_next].second);
    }

    /// The extras of the child there; null for none.
    [[nodiscard]] const Extras *child(Element element, const std::string &key, int index) const {
        if (m_children.empty())
            return nullptr;
        const auto it = m_children.find(Position{element, key, index});
        return it == m_children.end() ? nullptr : it->second;
    }

    /// The keys of the children of a kind that have extras.
    [[nodiscard]] std::vector<const std::string *> childKeys(Element element) const;

private:
    std::vector<std::pair<Position, const std::string *>> m_kept; // in the canonical order
    std::size_t m_next = 0;
    std::map<Position, const Extras *> m_children;
};

} // namespace Tano
