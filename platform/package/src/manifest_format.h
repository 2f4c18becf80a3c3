#pragma once

#include <tano/field_path.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace Tano {

/// The elements of a manifest, and pseudo-elements for the positions around them that kept content
/// may precede.
///
/// Elements below the root are numbered by the field tables (record_fields.h), those of one parent
/// contiguously. Within a parent, elements are written in the order of their numbers.
enum class Element : std::uint8_t {
    Prolog, ///< before the root element
    Package,
    FirstField,
    None = 252,
    InText, ///< within a text
    End,    ///< after the last child
    Epilog, ///< after the root element
};

/// The content of an element.
enum class Content : std::uint8_t { Elements, Text, Nothing };

/// How often an element may occur in its parent.
enum class Occurs : std::uint8_t { Once, OncePerKey, AnyTimes };

/// The role of an attribute. A key distinguishes the element from its siblings; a flag is "true" or
/// "false"; the format is the format's version.
enum class AttributeKind : std::uint8_t { Optional, Flag, Required, Key, Format };

struct AttributeRule {
    std::string_view name;
    AttributeKind kind = AttributeKind::Optional;

    constexpr bool isRequired() const { return kind >= AttributeKind::Required; }
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
    template<std::size_t Count>
    constexpr Rows(const std::array<Row, Count> &rows) // NOLINT(google-explicit-constructor)
        : m_first(rows.data())
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
    std::string_view field; ///< its name in field paths; empty for a text block
    Content content = Content::Nothing;
    Occurs occurs = Occurs::Once;
    Rows<AttributeRule> attributes;
    int keyAttribute = -1;    ///< index of the attribute that distinguishes siblings, or -1
    bool sortedByKey = false; ///< written by ascending key instead of in the author's order
    bool isRecord = false;    ///< whether it becomes a record with its own extras
    Rows<Element> children;
};

/// The rule of an element below Element::None; the rules of all elements are contiguous.
const ElementRule &ruleOf(Element element);

/// The index of the child with this name, or the number of children if there is none. Starts
/// searching at `likely`, since siblings are usually in canonical order.
std::size_t childNamed(const ElementRule &rule, std::string_view name, std::size_t likely);

/// The place of an element among its siblings, which are ordered by kind, then by key (a language,
/// a purpose, a name), then by index.
struct Place {
    Element element = Element::End;
    std::string_view key = {};
    int index = 0;
};

bool operator<(const Place &a, const Place &b);

/// A place with a shared key.
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

/// Whether an element is the text block of one language, which is not itself a field.
bool isTextsBlock(Element element);

/// Whether an element is an entry of the package, looked up by key and then by index among the
/// entries with this key.
bool isEntry(Element element);

/// Appends the field of an element. `texts` is the language of the enclosing text block, if any;
/// `index` counts the siblings with the same key.
void appendField(FieldPath &path, Element element, std::string_view key, int index,
                 std::string_view texts);

/// Cuts the middle of a sentence that a long key or name makes too long to read.
std::string shortened(std::string sentence);

inline constexpr std::string_view formatVersion = "1";

} // namespace Tano
