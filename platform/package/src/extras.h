#pragma once

#include "manifest_format.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Tano {

struct Extras;
using ExtrasPointer = std::shared_ptr<const Extras>;

/// The declaration of a namespace prefix.
struct Namespace {
    std::string prefix;
    std::string uri;
};

/// The content of an element beyond the record's fields. Most elements have none.
struct Extras {
    /// Comments, processing instructions and unknown elements before a child. Within a text, the
    /// index is a byte offset.
    struct Kept {
        Position before;
        std::string xml; // pieces, each followed by a NUL
    };
    struct Child {
        Position position; // index -1 if hidden
        ExtrasPointer extras;
    };
    /// A list of children: their kind and shared key.
    using ListId = std::pair<Element, std::string>;
    using Lists = std::map<ListId, std::vector<std::string>>;

    std::string attributes;      // unknown attributes in file order, as written: ` a="b"`
    std::vector<Kept> kept;      // in file order
    std::vector<Child> children; // children without a record, in ascending order
    /// The keys of each list's entries when the file was read, used to find the children of these
    /// extras after the list was edited. Null if unused.
    std::shared_ptr<const Lists> lists;
    /// Root element: the prefixes that it declares. Behaviors and dialogs: the prefixes of the root
    /// element that they use, redeclared when they are saved below another root.
    std::vector<std::shared_ptr<const Namespace>> namespaces;
};

/// Returns the keys of a list's current entries.
using ListKeys = std::function<std::vector<std::string>(const Extras::ListId &)>;

/// Stores the keys of every list that `extras` refers to.
void rememberLists(Extras &extras, const ListKeys &listKeys);

/// Removes the extras of the children of a kind whose keys are rejected.
void dropChildren(ExtrasPointer &extras, Element element,
                  const std::function<bool(const std::string &key)> &isDropped);

/// Hides or shows the extras of a removed child, so that undoing the removal restores them.
void hideChild(ExtrasPointer &extras, Element element, const std::string &key, bool isHidden);

/// Calls `visit` for each piece of kept content.
template<typename Visit>
void forEachPiece(std::string_view xml, Visit &&visit) {
    for (std::size_t start = 0; start < xml.size();) {
        const std::size_t end = xml.find('\0', start);
        visit(xml.substr(start, end - start));
        start = end + 1;
    }
}

/// Walks the extras of an element while its children are written in canonical order.
class ExtrasWalk {
public:
    ExtrasWalk(const Extras *extras, const ListKeys &listKeys);

    /// Calls `write(piece)` for all content before the child at `element`, `key`, `index` that is
    /// not written yet.
    template<typename Write>
    void before(Element element, std::string_view key, int index, Write &&write) {
        const Place place{element, key, index};
        for (; m_next < m_kept.size() && !(place < m_kept[m_next].first.place()); ++m_next)
            forEachPiece(*m_kept[m_next].second, write);
    }

    /// The extras of the child, null if it has none.
    const Extras *child(Element element, std::string_view key, int index) const;

    /// The keys of the children of a kind that have extras.
    std::vector<const std::string *> childKeys(Element element) const;

private:
    std::vector<std::pair<Position, const std::string *>> m_kept; // in canonical order
    std::size_t m_next = 0;
    std::vector<std::pair<Position, const Extras *>> m_children; // in ascending order
};

} // namespace Tano
