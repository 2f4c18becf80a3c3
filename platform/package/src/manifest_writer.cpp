#include "manifest_writer.h"

#include "list_keys.h"
#include "xml_escape.h"

#include <tano/manifest_reader.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <initializer_list>
#include <vector>

namespace Tano {
namespace {

const std::string noKey;

// An element that is being written: where it stands, and what is kept in it.
struct Node {
    const Node *parent;
    Element element;
    const std::string &key;
    int index;
    const Extras *extras;
};

struct Attribute {
    int number; // in the rule of the element
    std::string_view value;
};

constexpr std::string_view yes = "true";

class Writer {
public:
    WrittenManifest package(const PackageData &package);
    WrittenManifest behavior(const BehaviorData &data) {
        behavior({nullptr, Element::Behavior, noKey, 0, data.extras.get()}, data);
        return result();
    }
    WrittenManifest dialog(const DialogData &data) {
        dialog({nullptr, Element::Dialog, noKey, 0, data.extras.get()}, data);
        return result();
    }

private:
    // What is kept before or after the root element.
    void outside(const Extras *extras, Element place);
    void root(const Node &node, const PackageData &package);
    void requirements(const Node &node, ExtrasWalk &walk, const PackageData &package);
    void entries(const Node &node, ExtrasWalk &walk, const PackageData &package);
    void behavior(const Node &node, const BehaviorData &behavior);
    void behaviorTexts(const Node &node, const BehaviorData &behavior);
    void dialog(const Node &node, const DialogData &dialog);
    void service(const Node &node, const PackageService &service);

    // Opens the element, has `children` write what is in it with a walk through its extras, and
    // closes it, as <x/> when nothing was written.
    template<typename Children>
    void element(const Node &node, std::initializer_list<Attribute> attributes,
                 const ListKeys &listKeys, Children &&children);
    void empty(const Node &node, std::initializer_list<Attribute> attributes) {
        element(node, attributes, noLists, [](ExtrasWalk &) {});
    }
    void text(const Node &node, const std::string &text);
    // The text elements of a list, one each.
    void list(const Node &parent, ExtrasWalk &walk, Element kind, const std::string &key,
              const std::vector<std::string> &values);
    // The text element of a field, left out while it is empty and nothing is kept in it.
    void field(const Node &parent, ExtrasWalk &walk, Element kind, const std::string &key,
               const std::string &value);
    // The blocks of texts of all languages that have some, or in whose block something is kept.
    template<typename Block, typename... Maps>
    void texts(const Node &parent, ExtrasWalk &walk, Element kind, Block &&block,
               const Maps &...maps);

    void openTag(const Node &node, std::initializer_list<Attribute> attributes);
    void namespaces(const Node &node);
    void closeTag(const Node &node, std::size_t contentStart, bool onItsOwnLine);
    void line(std::string_view xml);
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

    static std::vector<std::string> noLists(const Extras::ListId &) { return {}; }

    const PackageData *m_package = nullptr; // null while an entry alone is written
    std::string m_out;
    std::string m_error;
    std::size_t m_level = 0;
};

std::string hexadecimal(unsigned char byte) {
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "0x%02X", unsigned(byte));
    return text.data();
}

// The keys of all maps in ascending order, each once.
template<typename... Maps>
std::vector<const std::string *> mergedKeys(std::vector<const std::string *> keys,
                                            const Maps &...maps) {
    const auto add = [&](const auto &map) {
        for (const auto &entry : map)
            keys.push_back(&entry.first);
    };
    (add(maps), ...);
    std::sort(keys.begin(), keys.end(), [](auto *a, auto *b) { return *a < *b; });
    keys.erase(std::unique(keys.begin(), keys.end(), [](auto *a, auto *b) { return *a == *b; }),
               keys.end());
    return keys;
}

WrittenManifest Writer::package(const PackageData &package) {
    m_package = &package;
    m_out.reserve(4096 + package.behaviors.size() * 2048);
    m_out = R"(<?xml version="1.0" encoding="UTF-8"?>)";
    const Extras *extras = package.extras.get();
    outside(extras, Element::Prolog);
    root({nullptr, Element::Package, noKey, 0, extras}, package);
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

void Writer::root(const Node &node, const PackageData &package) {
    const auto keys = [&](const Extras::ListId &id) { return listKeys(package, id); };
    element(node,
            {{PackageAttribute::Format, formatVersion},
             {PackageAttribute::Uid, package.uuid},
             {PackageAttribute::Version, package.version},
             {PackageAttribute::TypeVersion, package.typeVersion}},
            keys, [&](ExtrasWalk &walk) {
                walk.before(Element::Prolog, noKey, 0, [](std::string_view) {});
                field(node, walk, Element::Installer, noKey, package.installer);
                field(node, walk, Element::Author, noKey, package.author);
                field(node, walk, Element::Organization, noKey, package.organization);
                field(node, walk, Element::Date, noKey, package.date);
                field(node, walk, Element::Channel, noKey, package.channel);
                field(node, walk, Element::Path, noKey, package.path);
                requirements(node, walk, package);
                entries(node, walk, package);
            });
}

void Writer::requirements(const Node &node, ExtrasWalk &walk, const PackageData &package) {
    const auto languages = [&](Element kind, const std::vector<std::string> &codes) {
        for (int i = 0; i < int(codes.size()); ++i) {
            const std::string &code = codes[std::size_t(i)];
            before(walk, kind, noKey, i);
            empty({&node, kind, code, i, walk.child(kind, noKey, i)}, {{0, code}});
        }
    };
    languages(Element::SupportedLanguage, package.supportedLanguages);
    languages(Element::DescriptionLanguage, package.descriptionLanguages);

    const auto block = [&](const Node &texts) {
        element(texts, {{0, texts.key}}, noLists, [&](ExtrasWalk &inner) {
            field(texts, inner, Element::Name, noKey, textOf(package.names, texts.key));
            field(texts, inner, Element::Description, noKey,
                  textOf(package.descriptions, texts.key));
        });
    };
    texts(node, walk, Element::PackageTexts, block, package.names, package.descriptions);

    for (int i = 0; i < int(package.robotRequirements.size()); ++i) {
        const RobotRequirement &robot = package.robotRequirements[std::size_t(i)];
        constexpr Element kind = Element::RobotRequirement;
        before(walk, kind, noKey, i);
        empty({&node, kind, noKey, i, walk.child(kind, noKey, i)},
              {{RobotAttribute::Model, robot.model},
               {RobotAttribute::MinHeadVersion, robot.minHeadVersion},
               {RobotAttribute::MaxHeadVersion, robot.maxHeadVersion},
               {RobotAttribute::MinBodyVersion, robot.minBodyVersion},
               {RobotAttribute::MaxBodyVersion, robot.maxBodyVersion}});
    }
    for (int i = 0; i < int(package.brioRequirements.size()); ++i) {
        const BrioRequirement &brio = package.brioRequirements[std::size_t(i)];
        constexpr Element kind = Element::BrioRequirement;
        before(walk, kind, noKey, i);
        empty({&node, kind, noKey, i, walk.child(kind, noKey, i)},
              {{BrioAttribute::MinVersion, brio.minVersion},
               {BrioAttribute::MaxVersion, brio.maxVersion}});
    }
}

void Writer::entries(const Node &node, ExtrasWalk &walk, const PackageData &package) {
    for (int i = 0; i < int(package.behaviors.size()); ++i) {
        const BehaviorData &data = RecordAccess::data(package.behaviors[std::size_t(i)]);
        before(walk, Element::Behavior, noKey, i);
        behavior({&node, Element::Behavior, data.path, i, data.extras.get()}, data);
    }
    for (int i = 0; i < int(package.dialogs.size()); ++i) {
        const DialogData &data = RecordAccess::data(package.dialogs[std::size_t(i)]);
        before(walk, Element::Dialog, noKey, i);
        dialog({&node, Element::Dialog, data.topicName, i, data.extras.get()}, data);
    }
    for (int i = 0; i < int(package.services.size()); ++i) {
        const PackageService &data = package.services[std::size_t(i)];
        before(walk, Element::Service, noKey, i);
        service({&node, Element::Service, data.name, i, walk.child(Element::Service, noKey, i)},
                data);
    }
}

void Writer::behavior(const Node &node, const BehaviorData &behavior) {
    const auto keys = [&](const Extras::ListId &id) { return listKeys(behavior, id); };
    element(
        node,
        {{BehaviorAttribute::Path, behavior.path},
         {BehaviorAttribute::Nature, behavior.nature},
         {BehaviorAttribute::UserRequestable, behavior.userRequestable ? yes : std::string_view()}},
        keys, [&](ExtrasWalk &walk) {
            list(node, walk, Element::Permission, noKey, behavior.permissions);
            for (const auto &[purpose, conditions] : behavior.conditions)
                list(node, walk, Element::Condition, purpose, conditions);

            const auto block = [&](const Node &texts) { behaviorTexts(texts, behavior); };
            texts(node, walk, Element::BehaviorTexts, block, behavior.names, behavior.descriptions,
                  behavior.tags, behavior.triggerSentences, behavior.loadingResponses);
        });
}

void Writer::behaviorTexts(const Node &node, const BehaviorData &behavior) {
    const std::string &code = node.key;
    const auto keys = [&](const Extras::ListId &id) { return listKeys(behavior, code, id); };
    element(node, {{0, code}}, keys, [&](ExtrasWalk &walk) {
        field(node, walk, Element::Name, noKey, textOf(behavior.names, code));
        field(node, walk, Element::Description, noKey, textOf(behavior.descriptions, code));
        list(node, walk, Element::Tag, noKey, listOf(behavior.tags, code));
        list(node, walk, Element::TriggerSentence, noKey, listOf(behavior.triggerSentences, code));
        list(node, walk, Element::LoadingResponse, noKey, listOf(behavior.loadingResponses, code));
    });
}

void Writer::dialog(const Node &node, const DialogData &dialog) {
    element(node,
            {{DialogAttribute::TopicName, dialog.topicName},
             {DialogAttribute::TypeVersion, dialog.typeVersion}},
            noLists, [&](ExtrasWalk &walk) {
                const auto codes = mergedKeys(walk.childKeys(Element::Topic), dialog.topics);
                for (const std::string *code : codes)
                    field(node, walk, Element::Topic, *code, textOf(dialog.topics, *code));
            });
}

void Writer::service(const Node &node, const PackageService &service) {
    element(node,
            {{ServiceAttribute::Name, service.name},
             {ServiceAttribute::AutoRun, service.autoRun ? yes : std::string_view()}},
            noLists, [&](ExtrasWalk &walk) {
                field(node, walk, Element::ExecStart, noKey, service.execStart);
                for (const auto &[name, value] : service.properties) {
                    constexpr Element kind = Element::Property;
                    before(walk, kind, name, 0);
                    text({&node, kind, name, 0, walk.child(kind, name, 0)}, value);
                }
            });
}

template<typename Children>
void Writer::element(const Node &node, std::initializer_list<Attribute> attributes,
                     const ListKeys &listKeys, Children &&children) {
    openTag(node, attributes);
    const std::size_t contentStart = m_out.size();
    ++m_level;
    ExtrasWalk walk(node.extras, listKeys);
    children(walk);
    before(walk, Element::End, noKey, 0);
    --m_level;
    closeTag(node, contentStart, true);
}

void Writer::text(const Node &node, const std::string &text) {
    const ElementRule &rule = ruleOf(node.element);
    if (rule.keyAttribute >= 0)
        openTag(node, {{rule.keyAttribute, node.key}});
    else
        openTag(node, {});

    const std::size_t contentStart = m_out.size();
    std::size_t done = 0;
    if (node.extras) {
        for (const Extras::Kept &kept : node.extras->kept) {
            // The text may have been edited: stay within it, and before a whole character.
            std::size_t at = std::max(done, std::min(std::size_t(kept.before.index), text.size()));
            while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U)
                ++at;
            escaped(node, std::string_view(text).substr(done, at - done), EscapeFor::Text);
            forEachPiece(kept.xml, [this](std::string_view xml) { m_out += xml; });
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

template<typename Block, typename... Maps>
void Writer::texts(const Node &parent, ExtrasWalk &walk, Element kind, Block &&block,
                   const Maps &...maps) {
    for (const std::string *code : mergedKeys(walk.childKeys(kind), maps...)) {
        before(walk, kind, *code, 0);
        const std::size_t start = m_out.size();
        const Extras *extras = walk.child(kind, *code, 0);
        block(Node{&parent, kind, *code, 0, extras});
        // A block in which all texts turned out empty says nothing.
        const bool isOneLine = m_out.find('\n', start + 1) == std::string::npos;
        if (!extras && isOneLine)
            m_out.resize(start);
    }
}

void Writer::openTag(const Node &node, std::initializer_list<Attribute> attributes) {
    const ElementRule &rule = ruleOf(node.element);
    const std::size_t start = m_out.size();
    m_out += '\n';
    m_out.append(2 * m_level, ' ');
    m_out += '<';
    m_out += rule.name;
    for (const Attribute &attribute : attributes) {
        const AttributeRule &attributeRule = rule.attributes[std::size_t(attribute.number)];
        if (attribute.value.empty() && !attributeRule.required)
            continue;
        if (attribute.number == rule.keyAttribute &&
            attribute.value.size() > ManifestReader::maxKeyLength)
            fail(node, "cannot be saved: its key is longer than 4 KiB");
        ((m_out += ' ') += attributeRule.name) += "=\"";
        escaped(node, attribute.value, EscapeFor::Attribute);
        m_out += '"';
    }
    if (node.extras) {
        namespaces(node);
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
    m_out += xml;
}

void Writer::escaped(const Node &node, std::string_view text, EscapeFor where) {
    const std::size_t bad = appendEscaped(m_out, text, where);
    if (bad == std::string::npos)
        return;
    const auto byte = static_cast<unsigned char>(text[bad]);
    fail(node, byte < 0x20
                   ? "holds the control character " + hexadecimal(byte) + ", which XML cannot hold"
                   : "holds the byte " + hexadecimal(byte) +
                         ", which starts no character that XML can hold");
}

void Writer::fail(const Node &node, std::string reason) {
    if (!m_error.empty())
        return;
    const FieldPath path = pathOf(node);
    m_error = shortened((path.isEmpty() ? "The package" : "The field " + path.toString()) + ' ' +
                        std::move(reason) + '.');
}

// The index of a node among the entries with the same key.
int Writer::indexOf(const Node &node) const {
    if (!m_package || !isEntry(node.element))
        return node.index;
    const auto keys = listKeys(*m_package, {node.element, {}});
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

WrittenManifest writeManifest(const PackageData &package) {
    return Writer().package(package);
}

WrittenManifest writeElement(const BehaviorData &behavior) {
    return Writer().behavior(behavior);
}

WrittenManifest writeElement(const DialogData &dialog) {
    return Writer().dialog(dialog);
}

} // namespace Tano
