#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

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

/// Everything that reading and writing tell apart about an element.
struct ElementRule {
    std::string_view name;
    std::string_view field; ///< its word in the path of a field; empty for a block of texts
    Content content;
    Occurs occurs;
    std::vector<AttributeRule> attributes;
    int keyAttribute; ///< which attribute tells it from its like; -1 for none
    bool sortedByKey; ///< whether it is written by ascending key, else in the author's order
    std::vector<Element> children;
};

const ElementRule &ruleOf(Element element);

/// The child of a rule's element that has a name; Element::Count for none.
Element childNamed(const ElementRule &rule, std::string_view name);

/// The place of an element among its siblings: those of one kind are told apart by their key (a
/// language, a purpose, a name), then by their index.
struct Position {
    Element element = Element::End;
    std::string key = {};
    int index = 0;
};

bool operator<(const Position &a, const Position &b);

/// The path of a field below `parent`, for example "behaviors[greet]" + "tags[en_US][0]"; `texts`
/// is the language of the block of texts that the element stands in, if any.
std::string fieldPath(const std::string &parent, Element element, std::string_view key, int index,
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
