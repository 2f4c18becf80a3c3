#include <tano/kept_content.h>

#include "path_observer.h"
#include "xml_reading.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

namespace Tano {
namespace {

constexpr std::string_view commentStart = "<!--";
constexpr std::string_view commentEnd = "-->";

class CommentFinder : public PathObserver {
public:
    struct Found {
        KeptComment comment;
        std::size_t offset;
        std::size_t size;
        std::size_t depth; // the number of open elements around it
    };

    void elementStarts(Element element, const std::string &key, int index,
                       std::size_t offset) override {
        PathObserver::elementStarts(element, key, index, offset);
        if (!isTextsBlock(element))
            placeBeforePath(0);
    }
    // Comments before a text block without a text precede the field after the block.
    void elementEnds() override {
        placeBeforePath(isTextsBlock(element()) ? depth() : 0);
        PathObserver::elementEnds();
    }
    void keptPiece(std::string_view xml, std::size_t offset) override {
        if (xml.substr(0, commentStart.size()) != commentStart)
            return;
        const std::size_t textSize = xml.size() - commentStart.size() - commentEnd.size();
        const std::string_view text = xml.substr(commentStart.size(), textSize);
        m_unplaced.push_back(m_found.size());
        m_found.push_back({{std::string(text), path(), {}, 0}, offset, xml.size(), depth()});
    }

    std::vector<Found> take() {
        std::map<std::tuple<std::string_view, FieldPath, FieldPath>, int> counts;
        for (auto &[comment, offset, size, depth] : m_found)
            comment.index = counts[{comment.text, comment.parent, comment.before}]++;
        return std::move(m_found);
    }

private:
    // Assigns the next path to the pending comments at `fromDepth` or deeper.
    void placeBeforePath(std::size_t fromDepth) {
        if (m_unplaced.empty())
            return;
        const FieldPath next = path();
        while (!m_unplaced.empty() && m_found[m_unplaced.back()].depth >= fromDepth) {
            m_found[m_unplaced.back()].comment.before = next;
            m_unplaced.pop_back();
        }
    }

    std::vector<Found> m_found;
    std::vector<std::size_t> m_unplaced; // shallowest first
};

// Whether the start tag of an element puts it into a namespace. No default namespace is in effect
// around a kept element, otherwise the enclosing element would be kept, too.
bool isInNamespace(std::string_view element) {
    using Tag = std::pair<ExpatHandle, bool>;
    Tag tag(ExpatHandle(XML_ParserCreate("UTF-8"), &XML_ParserFree), false);
    XML_SetUserData(tag.first.get(), &tag);
    XML_SetStartElementHandler(
        tag.first.get(), [](void *data, const XML_Char * /*name*/, const XML_Char **attributes) {
            auto &[parser, isForeign] = *static_cast<Tag *>(data);
            for (; *attributes; attributes += 2)
                isForeign = isForeign || (std::string_view(attributes[0]) == "xmlns" &&
                                          !std::string_view(attributes[1]).empty());
            XML_StopParser(parser.get(), XML_FALSE);
        });
    XML_Parse(tag.first.get(), element.data(), int(element.size()), XML_TRUE);
    return tag.second;
}

class NodeFinder : public PathObserver {
public:
    // The offsets of a node's name: one for an attribute, start and end tag for an element.
    using Offsets = std::vector<std::size_t>;

    void keptAttributes(std::string_view attributes, std::size_t offset) override {
        for (std::size_t name = 1; name < attributes.size();) { // each is written ` a="b"`
            const std::size_t nameEnd = attributes.find('=', name);
            add(UnknownNode::Kind::Attribute, attributes.substr(name, nameEnd - name),
                {offset + name});
            name = attributes.find('"', nameEnd + 2) + 2;
        }
    }
    void keptPiece(std::string_view xml, std::size_t offset) override {
        if (xml[1] == '!' || xml[1] == '?' || isInNamespace(xml))
            return;
        Offsets names{offset + 1};
        const bool hasEndTag = xml[xml.size() - 2] != '/';
        if (hasEndTag)
            names.push_back(offset + xml.rfind("</") + 2);
        add(UnknownNode::Kind::Element, xml.substr(1, xml.find_first_of(" \t\n/>") - 1),
            std::move(names));
    }

    // Parallel to offsets().
    std::vector<UnknownNode> takeNodes() {
        countEqual(m_nodes);
        return std::move(m_nodes);
    }
    const std::vector<Offsets> &offsets() const { return m_offsets; }

private:
    void add(UnknownNode::Kind kind, std::string_view name, Offsets offsets) {
        if (name == "xmlns" || name.find(':') != std::string_view::npos)
            return;
        m_nodes.push_back(
            {kind, std::string(name), std::string(ruleOf(element()).name), path(), {}, 0});
        m_offsets.push_back(std::move(offsets));
    }

    std::vector<UnknownNode> m_nodes;
    std::vector<Offsets> m_offsets;
};

// Whether a path equals `outer` or lies below it: `a[0]` and `a[0].b` are below `a`.
bool isWithin(const FieldPath &path, const FieldPath &outer) {
    const auto &steps = path.steps();
    const auto &outerSteps = outer.steps();
    if (outerSteps.empty())
        return true;
    const std::size_t last = outerSteps.size() - 1;
    if (steps.size() <= last ||
        !std::equal(steps.begin(), steps.begin() + int(last), outerSteps.begin()))
        return false;
    const auto &selectors = steps[last].selectors;
    const auto &outerSelectors = outerSteps[last].selectors;
    return steps[last].field == outerSteps[last].field &&
           selectors.size() >= outerSelectors.size() &&
           std::equal(outerSelectors.begin(), outerSelectors.end(), selectors.begin());
}

class ElementFinder : public PathObserver {
public:
    void elementStarts(Element element, const std::string &key, int index,
                       std::size_t offset) override {
        PathObserver::elementStarts(element, key, index, offset);
        if (!isTextsBlock(element))
            m_offsets.emplace(path(), offset);
    }

    // The element of a field, or the one that withComment() uses in its place.
    std::size_t offsetOf(FieldPath path) const {
        for (;; path = path.parent()) {
            const auto first = m_offsets.lower_bound(path);
            std::size_t offset = std::string::npos;
            for (auto it = first; it != m_offsets.end() && isWithin(it->first, path); ++it)
                offset = std::min(offset, it->second);
            if (offset != std::string::npos || path.isEmpty())
                return offset;
        }
    }

private:
    std::map<FieldPath, std::size_t> m_offsets;
};

// Separates adjacent hyphens, which XML does not allow in comments.
std::string commentOf(const std::string &text) {
    std::string xml(commentStart);
    const std::size_t start = xml.size();
    for (const char c : text) {
        if (c == '-' && xml.size() > start && xml.back() == '-')
            xml += ' ';
        xml += c;
    }
    if (xml.size() > start && xml.back() == '-')
        xml += ' ';
    return xml += commentEnd;
}

// The child that a path step names, looked up in the element and in its text blocks.
Element elementOfField(Element parent, std::string_view field) {
    for (const Element child : ruleOf(parent).children) {
        if (ruleOf(child).field == field)
            return child;
        const Element text = isTextsBlock(child) ? elementOfField(child, field) : Element::None;
        if (text != Element::None)
            return text;
    }
    return Element::None;
}

// The parent element of a node.
Element parentOf(const UnknownNode &node) {
    Element parent = Element::Package;
    for (const FieldPath::Step &step : node.parentPath.steps()) {
        parent = elementOfField(parent, step.field);
        if (parent == Element::None)
            return parent;
    }
    if (ruleOf(parent).name == node.parent)
        return parent;
    for (const Element child : ruleOf(parent).children) {
        if (isTextsBlock(child) && ruleOf(child).name == node.parent)
            return child;
    }
    return Element::None;
}

auto identityOf(const KeptComment &comment) {
    return std::make_tuple(comment.index, comment.text, comment.parent, comment.before);
}

auto identityOf(const UnknownNode &node) {
    return std::make_tuple(node.index, node.kind, node.name, node.parent, node.parentPath);
}

struct Replacement {
    std::size_t offset;
    std::size_t size; // of the replaced text
    std::string text;
};

// Texts that are inserted at the same place keep their order. Of overlapping replacements, the
// first one is made.
std::string replaced(const std::string &manifest, std::vector<Replacement> replacements) {
    std::stable_sort(replacements.begin(), replacements.end(),
                     [](const auto &a, const auto &b) { return a.offset < b.offset; });
    std::string changed;
    std::size_t done = 0;
    for (const auto &[offset, size, text] : replacements) {
        if (offset < done)
            continue;
        changed.append(manifest, done, offset - done);
        changed += text;
        done = offset + size;
    }
    changed.append(manifest, done, std::string::npos);
    return changed;
}

bool isComment(std::string_view piece) {
    return piece.substr(0, 4) == "<!--";
}

} // namespace

std::vector<KeptComment> comments(const PackageInfo &package) {
    if (!keeps(package, isComment))
        return {};
    CommentFinder finder;
    write(package, finder);
    std::vector<KeptComment> comments;
    for (CommentFinder::Found &found : finder.take())
        comments.push_back(std::move(found.comment));
    return comments;
}

PackageInfo withoutComment(const PackageInfo &package, const KeptComment &comment) {
    return withoutComments(package, {comment});
}

PackageInfo withoutComments(const PackageInfo &package, const std::vector<KeptComment> &removed) {
    CommentFinder finder;
    const std::string manifest = write(package, finder).text;
    std::set<decltype(identityOf(KeptComment()))> identities;
    for (const KeptComment &comment : removed)
        identities.insert(identityOf(comment));
    std::vector<Replacement> replacements;
    for (const auto &found : finder.take()) {
        if (identities.count(identityOf(found.comment)) > 0)
            replacements.push_back({found.offset, found.size, {}});
    }
    if (manifest.empty() || replacements.empty())
        return package;
    return read(replaced(manifest, std::move(replacements))).value_or(package);
}

PackageInfo withComment(const PackageInfo &package, const FieldPath &before,
                        const std::string &text) {
    return withComments(package, {{text, {}, before, 0}});
}

PackageInfo withComments(const PackageInfo &package, const std::vector<KeptComment> &added) {
    ElementFinder finder;
    const std::string manifest = write(package, finder).text;
    if (manifest.empty())
        return package;
    std::vector<Replacement> insertions;
    insertions.reserve(added.size());
    for (const KeptComment &comment : added)
        insertions.push_back({finder.offsetOf(comment.before), 0, commentOf(comment.text)});
    return read(replaced(manifest, std::move(insertions))).value_or(package);
}

bool hasComment(const PackageInfo &package, const std::string &part) {
    return keeps(package, [&](std::string_view piece) {
        return isComment(piece) && piece.find(part) != std::string_view::npos;
    });
}

std::vector<UnknownNode> unknownNodes(const PackageInfo &package) {
    if (!hasKeptNodes(package))
        return {};
    NodeFinder finder;
    write(package, finder);
    return finder.takeNodes();
}

std::vector<std::string> knownNames(const UnknownNode &node) {
    const Element parent = parentOf(node);
    std::vector<std::string> names;
    if (parent == Element::None)
        return names;
    if (node.kind == UnknownNode::Kind::Attribute) {
        for (const AttributeRule &attribute : ruleOf(parent).attributes)
            names.emplace_back(attribute.name);
    } else {
        for (const Element child : ruleOf(parent).children)
            names.emplace_back(ruleOf(child).name);
    }
    return names;
}

std::optional<PackageInfo> withRenamedNode(const PackageInfo &package, const UnknownNode &node,
                                           const std::string &name) {
    return withRenamedNodes(package, {{node, name}});
}

std::optional<PackageInfo>
withRenamedNodes(const PackageInfo &package,
                 const std::vector<std::pair<UnknownNode, std::string>> &renamed) {
    NodeFinder finder;
    const std::string manifest = write(package, finder).text;
    std::map<decltype(identityOf(UnknownNode())), std::size_t> places;
    for (const UnknownNode &node : finder.takeNodes())
        places.emplace(identityOf(node), places.size());
    std::vector<Replacement> replacements;
    for (const auto &[node, name] : renamed) {
        const auto known = knownNames(node);
        const auto found = places.find(identityOf(node));
        if (std::find(known.begin(), known.end(), name) == known.end() || found == places.end())
            return {};
        for (const std::size_t offset : finder.offsets()[found->second])
            replacements.push_back({offset, node.name.size(), name});
    }
    return read(replaced(manifest, std::move(replacements)));
}

} // namespace Tano
