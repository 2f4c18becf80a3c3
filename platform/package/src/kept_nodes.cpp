#include <tano/kept_content.h>

#include "path_observer.h"

#include <set>
#include <tuple>

namespace Tano {
namespace {

// Identifies an element by name, path and, for a text block, language.
using Place = std::tuple<std::string, FieldPath, std::string>;

Place placeOf(const KeptNode &node) {
    return {node.parent, node.parentPath, node.language};
}

class KeptNodeFinder : public PathObserver {
public:
    struct Found {
        KeptNode node;
        std::size_t offset;
    };

    void elementStarts(Element element, const std::string &key, int index,
                       std::size_t offset) override {
        PathObserver::elementStarts(element, key, index, offset);
        m_starts[offset] = place();
    }
    void keptAttributes(std::string_view attributes, std::size_t offset) override {
        for (std::size_t start = 0; start < attributes.size();) { // each is written ` a="b"`
            const std::size_t nameEnd = attributes.find('=', start);
            const std::size_t end = attributes.find('"', nameEnd + 2) + 1;
            add(UnknownNode::Kind::Attribute, attributes.substr(start + 1, nameEnd - start - 1),
                attributes.substr(start, end - start), offset + start);
            start = end;
        }
    }
    void keptPiece(std::string_view xml, std::size_t offset) override {
        if (isElement(xml))
            add(UnknownNode::Kind::Element, xml.substr(1, xml.find_first_of(" \t\n/>") - 1), xml,
                offset);
    }

    std::vector<Found> &found() { return m_found; }

    // The offsets of the start tags. An omitted block gets the offset of the next element.
    std::map<Place, std::size_t> starts(const std::string &manifest) const {
        std::map<Place, std::size_t> starts;
        for (const auto &[offset, place] : m_starts) {
            const std::size_t tag = manifest.find('<', offset);
            const std::string &name = std::get<0>(place);
            if (manifest.compare(tag + 1, name.size(), name) == 0)
                starts.emplace(place, tag);
        }
        return starts;
    }

private:
    Place place() const {
        return {std::string(ruleOf(element()).name), path(), std::string(language())};
    }
    void add(UnknownNode::Kind kind, std::string_view name, std::string_view xml,
             std::size_t offset) {
        const auto [parent, parentPath, blockLanguage] = place();
        m_found.push_back(
            {{kind, std::string(name), std::string(xml), parent, parentPath, blockLanguage},
             offset});
    }

    std::vector<Found> m_found;
    std::map<std::size_t, Place> m_starts;
};

// The nodes added to one element.
struct Gained {
    std::string attributes;
    std::string elements;
};

std::size_t endOfTag(const std::string &manifest, std::size_t tag) {
    char quote = 0;
    std::size_t end = tag;
    for (; quote || manifest[end] != '>'; ++end) {
        const char c = manifest[end];
        if (quote ? c == quote : c == '"' || c == '\'')
            quote = quote ? 0 : c;
    }
    return end;
}

class NodeChange {
public:
    explicit NodeChange(const PackageInfo &package)
        : m_manifest(write(package, m_finder).text)
        , m_starts(m_finder.starts(m_manifest)) {}

    bool isPossible() const { return !m_manifest.empty(); }

    void remove(const std::vector<KeptNode> &nodes) {
        using Key = std::tuple<Place, UnknownNode::Kind, std::string>;
        const auto keyOf = [](const KeptNode &node) {
            return Key{placeOf(node), node.kind, node.xml};
        };
        std::multiset<Key> removed;
        for (const KeptNode &node : nodes)
            removed.insert(keyOf(node));
        for (const auto &[node, offset] : m_finder.found()) {
            const auto each = removed.find(keyOf(node));
            if (each == removed.end())
                continue;
            m_changes.push_back({offset, node.xml.size(), {}});
            removed.erase(each);
        }
    }

    // Returns the nodes whose parent does not exist.
    std::vector<KeptNode> add(const std::vector<KeptNode> &nodes) {
        std::vector<KeptNode> left;
        std::map<std::size_t, Gained> gained;
        for (const KeptNode &node : nodes) {
            const auto start = m_starts.find(placeOf(node));
            if (start == m_starts.end()) {
                left.push_back(node);
                continue;
            }
            const bool isAttribute = node.kind == UnknownNode::Kind::Attribute;
            Gained &each = gained[start->second];
            (isAttribute ? each.attributes : each.elements) += node.xml;
        }
        for (const auto &[tag, nodesOfTag] : gained)
            addTo(tag, nodesOfTag);
        return left;
    }

    std::string result() {
        std::sort(m_changes.begin(), m_changes.end(),
                  [](const Change &a, const Change &b) { return a.offset > b.offset; });
        for (const auto &[offset, size, text] : m_changes)
            m_manifest.replace(offset, size, text);
        return m_manifest;
    }

private:
    struct Change {
        std::size_t offset;
        std::size_t size;
        std::string text;
    };

    void addTo(std::size_t tag, const Gained &gained) {
        const std::size_t nameEnd = m_manifest.find_first_of(" />", tag);
        const std::size_t end = endOfTag(m_manifest, tag);
        const bool isEmpty = m_manifest[end - 1] == '/';
        if (!gained.elements.empty() && isEmpty)
            m_changes.push_back(
                {end - 1, 1,
                 '>' + gained.elements + "</" + m_manifest.substr(tag + 1, nameEnd - tag - 1)});
        else if (!gained.elements.empty())
            m_changes.push_back({end + 1, 0, gained.elements});
        if (!gained.attributes.empty())
            m_changes.push_back({nameEnd, 0, gained.attributes});
    }

    KeptNodeFinder m_finder;
    std::string m_manifest;
    std::map<Place, std::size_t> m_starts;
    std::vector<Change> m_changes;
};

} // namespace

bool hasKeptNodes(const PackageInfo &package) {
    return keeps(package, isElement);
}

std::vector<KeptNode> keptNodes(const PackageInfo &package) {
    if (!hasKeptNodes(package))
        return {};
    KeptNodeFinder finder;
    write(package, finder);
    std::vector<KeptNode> nodes;
    for (auto &found : finder.found())
        nodes.push_back(std::move(found.node));
    return nodes;
}

ChangedNodes withKeptNodes(const PackageInfo &package, const std::vector<KeptNode> &removed,
                           const std::vector<KeptNode> &added) {
    NodeChange change(package);
    if (!change.isPossible())
        return {package, added};
    change.remove(removed);
    std::vector<KeptNode> left = change.add(added);
    const auto result = read(change.result());
    return result ? ChangedNodes{*result, left} : ChangedNodes{package, added};
}

} // namespace Tano
