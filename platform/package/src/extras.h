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

/// The content of one element beyond the record's fields. Most elements have none.
struct Extras {
    /// Comments, processing instructions and unknown elements before a child. Within a text, the
    /// position's index is a byte offset.
    struct Kept {
        Position before;
        std::string xml; // pieces, each followed by a NUL
    };
    struct Child {
        Position position; // with the index -1 for a hidden one
        ExtrasPointer extras;
    };
    /// One list of children of the same kind: the kind, and the key that they share.
    using ListId = std::pair<Element, std::string>;
    using Lists = std::map<ListId, std::vector<std::string>>;

    std::string attributes;      // unknown ones in file order, as they are written: ` a="b"`
    std::vector<Kept> kept;      // in file order
    std::vector<Child> children; // those without a record of their own, in ascending order
    /// The distinguishing text of each entry of the lists when they were read; finds the children
    /// of these extras again after the list has been edited. Null for none.
    std::shared_ptr<const Lists> lists;
    /// Of the root element, the prefixes that it declares; of a behavior or dialog, those that it
    /// uses of the root element, declared again where it is saved below another root.
    std::vector<std::shared_ptr<const Namespace>> namespaces;
};

/// Returns the distinguishing texts of a list's present entries.
using ListKeys = std::function<std::vector<std::string>(const Extras::ListId &)>;

/// Remembers in `extras` the present entries of every list that it refers to.
void rememberLists(Extras &extras, const ListKeys &listKeys);

/// Removes the content kept within the children of a kind whose keys are rejected.
void dropChildren(ExtrasPointer &extras, Element element,
                  const std::function<bool(const std::string &key)> &isDropped);

/// Hides the content kept within the child of a kind and key, which is removed, or shows it again,
/// so that undoing the removal restores it.
void hideChild(ExtrasPointer &extras, Element element, const std::string &key, bool isHidden);

/// Calls `visit` with each of the pieces of kept content.
template<typename Visit>
void forEachPiece(std::string_view xml, Visit &&visit) {
    for (std::size_t start = 0; start < xml.size();) {
        const std::size_t end = xml.find('\0', start);
        visit(xml.substr(start, end - start));
        start = end + 1;
    }
}

/// Walks the extras of an element while its children are written in the canonical order.
class ExtrasWalk {
public:
    ExtrasWalk(const Extras *extras, const ListKeys &listKeys);

    /// Calls `write(piece)` for all content before the child at `element`, `key`, `index` that has
    /// not been written yet.
    template<typename Write>
    void before(Element element, std::string_view key, int index, Write &&write) {
        const Place place{element, key, index};
        for (; m_next < m_kept.size() && !(place < m_kept[m_next].first.place()); ++m_next)
            forEachPiece(*m_kept[m_next].second, write);
    }

    /// The extras of the child there; null for none.
    const Extras *child(Element element, std::string_view key, int index) const;

    /// The keys of the children of a kind that have extras.
    std::vector<const std::string *> childKeys(Element element) const;

private:
    std::vector<std::pair<Position, const std::string *>> m_kept; // in the canonical order
    std::size_t m_next = 0;
    std::vector<std::pair<Position, const Extras *>> m_children; // in ascending order
};

} // namespace Tano
