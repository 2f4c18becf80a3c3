#include "manifest_writer.h"

#include "list_keys.h"
#include "xml_escape.h"

#include <tano/manifest_reader.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <vector>

namespace Tano {
namespace {

// The size of a longer list is estimated from this many entries, to copy less while it grows.
constexpr int sampledEntries = 64;

const std::string noKey;

// An element being written: its position and its kept content.
struct Node {
    const Node *parent;
    Element element;
    const std::string &key;
    int index;
    const Extras *extras;
};

class Writer {
public:
    explicit Writer(WriteObserver *observer = nullptr)
        : m_observer(observer) {}

    WrittenManifest package(const PackageData &package);
    // Writes a single entry.
    template<typename Data>
    WrittenManifest record(Element kind, const Data &data) {
        owner<Data>({nullptr, kind, noKey, 0, data.extras.get()}, data);
        return result();
    }

private:
    // Writes the content kept before or after the root element.
    void outside(const Extras *extras, Element place);
    // Writes the element of a record, or of its texts in the language that is the node's key:
    // attributes, then children in row order. Without children, it becomes <x/>.
    template<typename Owner, typename Data>
    void owner(const Node &node, const Data &data);

    // Writes the content and end tag of an element.
    template<typename WriteChildren>
    void content(const Node &node, ExtrasWalk &walk, WriteChildren &&writeChildren);

    // Writes the children that a row describes.
    template<typename Owner, typename Data, typename Value>
    void children(const Node &parent, ExtrasWalk &walk, Element kind, const Data &data,
                  const ElementRow<Data, Value> &row);
    template<typename Owner, typename Data>
    void children(const Node &parent, ExtrasWalk &walk, Element kind, const Data &data,
                  const TextsRow<Data> &row);
    void codes(const Node &parent, ExtrasWalk &walk, Element kind,
               const std::vector<std::string> &codes);
    void reserveFor(std::size_t size);
    template<typename Entry>
    void entries(const Node &parent, ExtrasWalk &walk, Element kind,
                 const std::vector<Entry> &entries);
    void textsByKey(const Node &parent, ExtrasWalk &walk, Element kind, const TextMap &texts,
                    bool keepsEmptyTexts);
    void text(const Node &node, const std::string &text);
    // Writes one text element per list item.
    void list(const Node &parent, ExtrasWalk &walk, Element kind, const std::string &key,
              const std::vector<std::string> &values);
    // Writes the text element of a field unless it is empty and has no kept content.
    void field(const Node &parent, ExtrasWalk &walk, Element kind, const std::string &key,
               const std::string &value);
    // `values` has one value per attribute of the rule.
    void openTag(const Node &node, const std::string_view *values);
    void namespaces(const Node &node);
    void closeTag(const Node &node, std::size_t contentStart, bool onItsOwnLine);
    void line(std::string_view xml);
    void piece(std::string_view xml);
    void before(ExtrasWalk &walk, Element kind, const std::string &key, int index) {
        walk.before(kind, key, index, [this](std::string_view xml) { line(xml); });
    }
    void escaped(const Node &node, std::string_view text, EscapeFor where);
    void fail(const Node &node, std::string reason);
    int indexOf(const Node &node) const;
    FieldPath pathOf(const Node &node) const;

    WrittenManifest result() {
        if (!m_error.empty())
            return {{}, std::move(m_error)};
        return {std::move(m_out), {}};
    }

    WriteObserver *m_observer;
    const PackageData *m_package = nullptr; // null when a single entry is written
    std::string m_out;
    std::string m_error;
    std::size_t m_level = 0;
};

std::string hexadecimal(unsigned char byte) {
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "0x%02X", unsigned(byte));
    return text.data();
}

std::string_view valueOf(const FormatRow & /*row*/, const PackageData & /*data*/) {
    return formatVersion;
}
template<typename Data>
std::string_view valueOf(const AttributeRow<Data, std::string> &row, const Data &data) {
    return data.*row.member;
}
template<typename Data>
std::string_view valueOf(const AttributeRow<Data, bool> &row, const Data &data) {
    return data.*row.member ? yes : std::string_view();
}

using Keys = std::vector<const std::string *>;

template<typename Map>
void addKeys(Keys &keys, const Map &map) {
    for (const auto &entry : map)
        keys.push_back(&entry.first);
}

// Sorted, without duplicates.
Keys merged(Keys keys) {
    std::sort(keys.begin(), keys.end(), [](auto *a, auto *b) { return *a < *b; });
    keys.erase(std::unique(keys.begin(), keys.end(), [](auto *a, auto *b) { return *a == *b; }),
               keys.end());
    return keys;
}

WrittenManifest Writer::package(const PackageData &package) {
    m_package = &package;
    m_out = R"(<?xml version="1.0" encoding="UTF-8"?>)";
    const Extras *extras = package.extras.get();
    outside(extras, Element::Prolog);
    owner<PackageData>({nullptr, Element::Package, noKey, 0, extras}, package);
    outside(extras, Element::Epilog);
    m_out += '\n';
    return result();
}

void Writer::outside(const Extras *extras, Element place) {
    if (!extras)
        return;
    for (const Extras::Kept &kept : extras->kept) {
        if (kept.before.element == place)
            forEachPiece(kept.xml, [this](std::string_view xml) { line(xml); });
    }
}

template<typename Owner, typename Data>
void Writer::owner(const Node &node, const Data &data) {
    if constexpr (isTexts<Owner>) {
        const std::string_view language = node.key;
        openTag(node, &language);
    } else {
        const auto values = std::apply(
            [&](const auto &...row) {
                return std::array<std::string_view, sizeof...(row)>{valueOf(row, data)...};
            },
            attributesOf<Owner>);
        openTag(node, values.data());
    }
    ExtrasWalk walk(node.extras,
                    [&](const Extras::ListId &id) { return listKeys<Owner>(data, node.key, id); });
    walk.before(Element::Prolog, noKey, 0, [](std::string_view) {}); // already written
    content(node, walk, [&] {
        forEachElement<Owner>(
            [&](Element kind, const auto &row) { children<Owner>(node, walk, kind, data, row); });
    });
}

template<typename WriteChildren>
void Writer::content(const Node &node, ExtrasWalk &walk, WriteChildren &&writeChildren) {
    const std::size_t start = m_out.size();
    ++m_level;
    writeChildren();
    before(walk, Element::End, noKey, 0);
    --m_level;
    closeTag(node, start, true);
}

template<typename Owner, typename Data, typename Value>
void Writer::children(const Node &parent, ExtrasWalk &walk, Element kind, const Data &data,
                      const ElementRow<Data, Value> &row) {
    const Value &value = data.*row.member;
    if constexpr (std::is_same_v<Value, std::string>) {
        field(parent, walk, kind, noKey, value);
    } else if constexpr (std::is_same_v<Value, UniqueTexts>) {
        codes(parent, walk, kind, value);
    } else if constexpr (std::is_same_v<Value, std::vector<std::string>>) {
        list(parent, walk, kind, noKey, value);
    } else if constexpr (isEntryList<Value>) {
        entries(parent, walk, kind, value);
    } else if constexpr (std::is_same_v<Value, TextMap>) {
        if constexpr (isTexts<Owner>)
            field(parent, walk, kind, noKey, textOf(value, parent.key));
        else
            textsByKey(parent, walk, kind, value, row.keepsEmptyTexts);
    } else if constexpr (isTexts<Owner>) {
        list(parent, walk, kind, noKey, listOf(value, parent.key));
    } else {
        for (const auto &[key, values] : value)
            list(parent, walk, kind, key, values);
    }
}

// The text blocks of all languages that have texts or kept content.
template<typename Owner, typename Data>
void Writer::children(const Node &parent, ExtrasWalk &walk, Element kind, const Data &data,
                      const TextsRow<Data> & /*row*/) {
    Keys languages = walk.childKeys(kind);
    forEachElement<Texts<Data>>(
        [&](Element /*text*/, const auto &row) { addKeys(languages, data.*row.member); });
    for (const std::string *language : merged(std::move(languages))) {
        before(walk, kind, *language, 0);
        const std::size_t start = m_out.size();
        const Extras *extras = walk.child(kind, *language, 0);
        owner<Texts<Data>>({&parent, kind, *language, 0, extras}, data);
        // Omits a block in which all texts turned out to be empty.
        const bool isOneLine = m_out.find('\n', start + 1) == std::string::npos;
        if (!extras && isOneLine)
            m_out.resize(start);
    }
}

void Writer::codes(const Node &parent, ExtrasWalk &walk, Element kind,
                   const std::vector<std::string> &codes) {
    for (int i = 0; i < int(codes.size()); ++i) {
        before(walk, kind, noKey, i);
        const Node node{&parent, kind, codes[std::size_t(i)], i, walk.child(kind, noKey, i)};
        const std::string_view code = node.key;
        openTag(node, &code);
        ExtrasWalk inner(node.extras, nullptr);
        content(node, inner, [] {});
    }
}

// The first entries of a list can be much longer than the others.
void Writer::reserveFor(std::size_t size) {
    constexpr std::size_t mostSpare = std::size_t(64) << 20;
    m_out.reserve(m_out.size() + std::min(size, std::max(mostSpare, 2 * m_out.size())));
}

template<typename Entry>
void Writer::entries(const Node &parent, ExtrasWalk &walk, Element kind,
                     const std::vector<Entry> &entries) {
    const std::size_t start = m_out.size();
    for (int i = 0; i < int(entries.size()); ++i) {
        if (i == sampledEntries)
            reserveFor((m_out.size() - start) / sampledEntries * entries.size() / 8 * 9);
        const auto &data = dataOf(entries[std::size_t(i)]);
        using Data = std::decay_t<decltype(data)>;
        before(walk, kind, noKey, i);
        const Extras *extras = nullptr;
        if constexpr (hasExtras<Data>)
            extras = data.extras.get();
        else
            extras = walk.child(kind, noKey, i);
        owner<Data>({&parent, kind, keyOf(data), i, extras}, data);
    }
}

void Writer::textsByKey(const Node &parent, ExtrasWalk &walk, Element kind, const TextMap &texts,
                        bool keepsEmptyTexts) {
    Keys keys = keepsEmptyTexts ? Keys() : walk.childKeys(kind);
    addKeys(keys, texts);
    for (const std::string *key : merged(std::move(keys))) {
        if (keepsEmptyTexts) {
            before(walk, kind, *key, 0);
            text({&parent, kind, *key, 0, walk.child(kind, *key, 0)}, textOf(texts, *key));
        } else {
            field(parent, walk, kind, *key, textOf(texts, *key));
        }
    }
}

void Writer::text(const Node &node, const std::string &text) {
    const std::string_view key = node.key;
    openTag(node, &key);
    const std::size_t contentStart = m_out.size();
    std::size_t done = 0;
    if (node.extras) {
        for (const Extras::Kept &kept : node.extras->kept) {
            // The text may have been edited: clamp the offset to it, and to a character boundary.
            std::size_t at = std::max(done, std::min(std::size_t(kept.before.index), text.size()));
            while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U)
                ++at;
            escaped(node, std::string_view(text).substr(done, at - done), EscapeFor::Text);
            forEachPiece(kept.xml, [this](std::string_view xml) { piece(xml); });
            done = at;
        }
    }
    escaped(node, std::string_view(text).substr(done), EscapeFor::Text);
    closeTag(node, contentStart, false);
}

void Writer::list(const Node &parent, ExtrasWalk &walk, Element kind, const std::string &key,
                  const std::vector<std::string> &values) {
    for (int i = 0; i < int(values.size()); ++i) {
        before(walk, kind, key, i);
        text({&parent, kind, key, i, walk.child(kind, key, i)}, values[std::size_t(i)]);
    }
}

void Writer::field(const Node &parent, ExtrasWalk &walk, Element kind, const std::string &key,
                   const std::string &value) {
    before(walk, kind, key, 0);
    const Extras *extras = walk.child(kind, key, 0);
    if (!value.empty() || extras)
        text({&parent, kind, key, 0, extras}, value);
}

void Writer::openTag(const Node &node, const std::string_view *values) {
    const ElementRule &rule = ruleOf(node.element);
    const std::size_t start = m_out.size();
    if (m_observer)
        m_observer->elementStarts(node.element, node.key, node.index, start);
    m_out += '\n';
    m_out.append(2 * m_level, ' ');
    m_out += '<';
    m_out += rule.name;
    for (const AttributeRule &attribute : rule.attributes) {
        const std::string_view value = *values++;
        if (value.empty() && !attribute.isRequired())
            continue;
        if (attribute.kind == AttributeKind::Key && value.size() > ManifestReader::maxKeyLength)
            fail(node, "cannot be saved: its key is longer than 4 KiB");
        ((m_out += ' ') += attribute.name) += "=\"";
        escaped(node, value, EscapeFor::Attribute);
        m_out += '"';
    }
    if (node.extras) {
        namespaces(node);
        if (m_observer)
            m_observer->keptAttributes(node.extras->attributes, m_out.size());
        m_out += node.extras->attributes;
    }
    m_out += '>';
    if (m_out.size() - start > ManifestReader::maxTagLength)
        fail(node, "is too long to be saved: a tag holds at most 1 MiB");
}

// Declares the prefixes that a behavior or dialog uses and that the root element does not declare.
void Writer::namespaces(const Node &node) {
    if (node.element == Element::Package)
        return;
    const auto isDeclared = [this](const Namespace &used) {
        const Extras *root = m_package ? m_package->extras.get() : nullptr;
        return root &&
               std::any_of(
                   root->namespaces.begin(), root->namespaces.end(), [&](const auto &declared) {
                       return declared.get() == &used ||
                              (declared->prefix == used.prefix && declared->uri == used.uri);
                   });
    };
    for (const auto &used : node.extras->namespaces) {
        if (isDeclared(*used))
            continue;
        ((m_out += " xmlns:") += used->prefix) += "=\"";
        escaped(node, used->uri, EscapeFor::Attribute);
        m_out += '"';
    }
}

void Writer::closeTag(const Node &node, std::size_t contentStart, bool onItsOwnLine) {
    if (m_observer)
        m_observer->elementEnds();
    if (m_out.size() == contentStart) {
        m_out.back() = '/';
        m_out += '>';
        return;
    }
    if (onItsOwnLine) {
        m_out += '\n';
        m_out.append(2 * m_level, ' ');
    }
    ((m_out += "</") += ruleOf(node.element).name) += '>';
}

void Writer::line(std::string_view xml) {
    m_out += '\n';
    m_out.append(2 * m_level, ' ');
    piece(xml);
}

void Writer::piece(std::string_view xml) {
    if (m_observer)
        m_observer->keptPiece(xml, m_out.size());
    m_out += xml;
}

void Writer::escaped(const Node &node, std::string_view text, EscapeFor where) {
    const std::size_t bad = appendEscaped(m_out, text, where);
    if (bad == std::string::npos)
        return;
    const auto byte = static_cast<unsigned char>(text[bad]);
    fail(node, byte < 0x20 ? "contains the control character " + hexadecimal(byte) +
                                 ", which XML cannot represent"
                           : "contains the byte " + hexadecimal(byte) +
                                 ", which does not start a valid XML character");
}

void Writer::fail(const Node &node, std::string reason) {
    if (!m_error.empty())
        return;
    const FieldPath path = pathOf(node);
    m_error = shortened((path.isEmpty() ? "The package" : "The field " + path.toString()) + ' ' +
                        std::move(reason) + '.');
}

// The index of a node among the siblings with the same key.
int Writer::indexOf(const Node &node) const {
    if (!m_package || !isEntry(node.element))
        return node.index;
    const auto keys = listKeys<PackageData>(*m_package, noKey, {node.element, {}});
    return int(std::count(keys.begin(), keys.begin() + node.index, node.key));
}

FieldPath Writer::pathOf(const Node &node) const {
    if (node.element == Element::Package)
        return {};
    FieldPath path = node.parent ? pathOf(*node.parent) : FieldPath();
    const bool isText = node.parent && isTextsBlock(node.parent->element);
    appendField(path, node.element, node.key, indexOf(node),
                isText ? std::string_view(node.parent->key) : std::string_view());
    return path;
}

} // namespace

WrittenManifest writeManifest(const PackageData &package, WriteObserver *observer) {
    return Writer(observer).package(package);
}

WrittenManifest writeElement(const BehaviorData &behavior) {
    return Writer().record(elementOf(&PackageData::behaviors), behavior);
}

WrittenManifest writeElement(const DialogData &dialog) {
    return Writer().record(elementOf(&PackageData::dialogs), dialog);
}

} // namespace Tano
