#pragma once

#include "field_positions.h"
#include "manifest_writer.h"

#include <tano/manifest_reader.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Tano {

/// Tracks the path of the innermost element being written.
class PathObserver : public WriteObserver {
public:
    void elementStarts(Element element, const std::string &key, int index,
                       std::size_t /*offset*/) override {
        const int sameKey = isEntry(element) ? m_entries[{element, key}]++ : index;
        m_open.push_back({element, key, sameKey});
    }
    void elementEnds() override { m_open.pop_back(); }

protected:
    // The number of open elements.
    std::size_t depth() const { return m_open.size(); }
    Element element() const { return m_open.back().element; }
    // The language of the innermost element if it is a text block, else empty.
    std::string_view language() const {
        return isTextsBlock(element()) ? m_open.back().key : std::string_view();
    }

    FieldPath path() const {
        FieldPath path;
        std::string_view language; // of the enclosing text block
        for (const Open &open : m_open) {
            if (open.element != Element::Package)
                appendField(path, open.element, open.key, open.index, language);
            language = isTextsBlock(open.element) ? open.key : std::string_view();
        }
        return path;
    }

private:
    struct Open {
        Element element;
        std::string_view key;
        int index; // among the siblings with the same key
    };
    std::vector<Open> m_open;
    std::map<std::pair<Element, std::string>, int> m_entries;
};

inline WrittenManifest write(const PackageInfo &package, WriteObserver &observer) {
    return writeManifest(RecordAccess::data(package), &observer);
}

inline std::optional<PackageInfo> read(const std::string &manifest) {
    PackageInfo package;
    if (!ManifestReader().readContent(manifest, package))
        return {};
    return package;
}

/// Whether an element has kept content that `isLooked` accepts. Without any, searching needs no
/// written manifest.
template<typename IsLooked>
bool keeps(const ExtrasPointer &extras, IsLooked isLooked) {
    if (!extras)
        return false;
    if (!extras->attributes.empty() && isLooked("<a"))
        return true;
    for (const Extras::Kept &kept : extras->kept) {
        bool isKept = false;
        forEachPiece(kept.xml, [&](std::string_view piece) { isKept = isKept || isLooked(piece); });
        if (isKept)
            return true;
    }
    return std::any_of(extras->children.begin(), extras->children.end(),
                       [&](const auto &child) { return keeps(child.extras, isLooked); });
}

template<typename IsLooked>
bool keeps(const PackageInfo &package, IsLooked isLooked) {
    const auto anyOf = [&](const auto &records) {
        return std::any_of(records.begin(), records.end(), [&](const auto &record) {
            return keeps(RecordAccess::data(record).extras, isLooked);
        });
    };
    return keeps(RecordAccess::data(package).extras, isLooked) || anyOf(package.behaviors()) ||
           anyOf(package.dialogs());
}

/// Whether a piece of kept content is an element, or represents attributes.
inline bool isElement(std::string_view piece) {
    return piece.size() > 1 && piece[0] == '<' && piece[1] != '!' && piece[1] != '?';
}

} // namespace Tano
