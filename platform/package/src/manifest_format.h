#pragma once

#include <tano/field_path.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace Tano {

/// The elements of a manifest, and the places around them where something may stand. Within one
/// parent, elements are written in this order.
enum class Element : std::uint8_t {
    Prolog, ///< what stands before the root element
    Package,
    // in a package
    Installer,
    Author,
    Organization,
    Date,
    Channel,
    Path,
    SupportedLanguage,
    DescriptionLanguage,
    PackageTexts,
    RobotRequirement,
    BrioRequirement,
    Behavior,
    Dialog,
    Service,
    // in a behavior
    Permission,
    Condition,
    BehaviorTexts,
    // in the texts of a language
    Name,
    Description,
    Tag,
    TriggerSentence,
    LoadingResponse,
    // in a dialog
    Topic,
    // in a service
    ExecStart,
    Property,
    Count,
    InText, ///< within a text
    End,    ///< after the last child
    Epilog, ///< what stands after the root element
};

/// What an element holds.
enum class Content : std::uint8_t { Elements, Text, Nothing };

/// How often an element may stand in its parent.
enum class Occurs : std::uint8_t { Once, OncePerKey, AnyTimes };

struct AttributeRule {
    std::string_view name;
    bool required;
};

/// A constant table that an element's rule refers to.
template<typename Row>
class Rows {
public:
    constexpr Rows() = default;
    template<std::size_t Count>
    constexpr Rows(const Row (&rows)[Count]) // NOLINT(google-explicit-constructor): a table is one
        : m_first(rows)
        , m_count(Count) {}

    constexpr const Row *begin() const { return m_first; }
    constexpr const Row *end() const { return m_first + m_count; }
    constexpr std::size_t size() const { return m_count; }
    constexpr const Row &operator[](std::size_t i) const { return m_first[i]; }

private:
    const Row *m_first = nullptr;
    std::size_t m_count = 0;
};

/// The rules of one element.
struct ElementRule {
    std::string_view name;
    std::string_view field; ///< its word in the path of a field; empty for a block of texts
    Content content = Content::Nothing;
    Occurs occurs = Occurs::Once;
    Rows<AttributeRule> attributes;
    int keyAttribute = -1; ///< which attribute distinguishes its siblings; -1 for none
    bool sortedByKey =
        false; ///< whether it is written by ascending key, else in the author's order
    Rows<Element> children;
};

/// The most attributes that an element of the format has.
inline constexpr std::size_t mostKnownAttributes = 5;
/// The most elements of the format within each other: package, behavior, texts, name.
inline constexpr int deepestKnown = 4;

const ElementRule &ruleOf(Element element);

/// The child of a rule's element that has a name; Element::Count for none.
Element childNamed(const ElementRule &rule, std::string_view name);

/// The place of an element among its siblings: those of one kind are ordered by their key (a
/// language, a purpose, a name), then by their index.
struct Place {
    Element element = Element::End;
    std::string_view key = {};
    int index = 0;
};

bool operator<(const Place &a, const Place &b);

/// A place that owns its key, which many positions share.
struct Position {
    Element element = Element::End;
    int index = 0;
    std::shared_ptr<const std::string> key = {}; // null for the empty key

    const std::string &keyText() const;
    Place place() const { return {element, keyText(), index}; }
};

inline bool operator<(const Position &a, const Position &b) {
    return a.place() < b.place();
}

/// Whether an element is a block of the texts of one language, which is no field of its own.
constexpr bool isTextsBlock(Element element) {
    return element == Element::PackageTexts || element == Element::BehaviorTexts;
}

/// Whether an element is an entry of the package, found by its key and then by its index among the
/// entries with the same key.
constexpr bool isEntry(Element element) {
    return element == Element::Behavior || element == Element::Dialog ||
           element == Element::Service;
}

/// Appends the field of an element; `texts` is the language of the block of texts around it, if
/// any, and `index` counts the siblings with the same key.
void appendField(FieldPath &path, Element element, std::string_view key, int index,
                 std::string_view texts);

/// The sentence, without its middle where a long key or name makes it too long to be read.
std::string shortened(std::string sentence);

inline constexpr std::string_view formatVersion = "1";

// Which attribute of its element's rule a value belongs to.
namespace PackageAttribute {
enum { Format, Uid, Version, TypeVersion };
}
namespace RobotAttribute {
enum { Model, MinHeadVersion, MaxHeadVersion, MinBodyVersion, MaxBodyVersion };
}
namespace BrioAttribute {
enum { MinVersion, MaxVersion };
}
namespace BehaviorAttribute {
enum { Path, Nature, UserRequestable };
}
namespace DialogAttribute {
enum { TopicName, TypeVersion };
}
namespace ServiceAttribute {
enum { Name, AutoRun };
}

} // namespace Tano
