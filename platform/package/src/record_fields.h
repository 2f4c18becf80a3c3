#pragma once

#include "record_data.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

// The fields of the records and the elements and attributes that hold them in a manifest, one row
// each. The format's rules, the parser, the writer and the comparison of records are generated from
// these tables. Rows are in canonical order.

namespace Tano {

inline constexpr std::string_view yes = "true";
inline constexpr std::string_view no = "false";

/// The texts of a record in one language, which share an element.
template<typename Data>
struct Texts;

/// The rows of an owner, which is a record or its texts.
template<typename Owner>
inline constexpr auto attributesOf = std::tuple<>();
template<typename Owner>
inline constexpr auto elementsOf = std::tuple<>();

/// The first attribute of the root element, which is not a field.
struct FormatRow {
    AttributeRule rule{"format", AttributeKind::Format};

    static constexpr auto members() { return std::tuple<>(); }
};

/// A text or a flag, stored in an attribute.
template<typename Data, typename Value>
struct AttributeRow {
    AttributeRule rule;
    Value Data::*member;

    constexpr auto members() const { return std::tuple(member); }
};

/// One child element or a list of them, depending on the type of the member:
///
/// - a text, a list of texts, a list of entries, or a list of codes, each in the attribute `key`;
/// - a text or a list of texts for each value of the attribute `key`;
/// - in a text block, the text or list of texts in the language of the block.
template<typename Data, typename MemberValue>
struct ElementRow {
    using Value = MemberValue;

    std::string_view name;
    std::string_view field; // its name in paths
    Value Data::*member;
    Rows<AttributeRule> key = {};
    bool keepsEmptyTexts = false; // whether an empty text counts as a text

    constexpr auto members() const { return std::tuple(member); }
};

template<typename Owner>
constexpr auto membersOf();

/// The text blocks, one per language.
template<typename Data>
struct TextsRow {
    using Value = Texts<Data>;

    static constexpr auto members() { return membersOf<Texts<Data>>(); }
};

template<typename Data, typename Value>
constexpr AttributeRow<Data, Value> attribute(AttributeKind kind, std::string_view name,
                                              Value Data::*member) {
    return {{name, kind}, member};
}

template<typename Data, typename Value>
constexpr ElementRow<Data, Value> element(std::string_view name, std::string_view field,
                                          Value Data::*member, Rows<AttributeRule> key = {}) {
    return {name, field, member, key, false};
}

template<typename Data>
constexpr ElementRow<Data, std::string> element(std::string_view name, std::string Data::*member) {
    return element(name, name, member);
}

// Marks a row whose empty texts are values, distinct from absent ones.
template<typename Row>
constexpr Row withEmptyTexts(Row row) {
    row.keepsEmptyTexts = true;
    return row;
}

inline constexpr auto required = AttributeKind::Required;
inline constexpr auto optional = AttributeKind::Optional;
inline constexpr auto keyed = AttributeKind::Key;
inline constexpr auto flag = AttributeKind::Flag;
inline constexpr AttributeRule byCode[] = {{"code", keyed}};
inline constexpr AttributeRule byLanguage[] = {{"language", keyed}};
inline constexpr AttributeRule byName[] = {{"name", keyed}};
inline constexpr AttributeRule byPurpose[] = {{"purpose", keyed}};

template<>
inline constexpr auto attributesOf<PackageData> = std::tuple{
    FormatRow(),
    attribute(required, "uid", &PackageData::uuid),
    attribute(required, "version", &PackageData::version),
    attribute(optional, "typeVersion", &PackageData::typeVersion),
};
template<>
inline constexpr auto elementsOf<PackageData> = std::tuple{
    element("installer", &PackageData::installer),
    element("author", &PackageData::author),
    element("organization", &PackageData::organization),
    element("date", &PackageData::date),
    element("channel", &PackageData::channel),
    element("path", &PackageData::path),
    element("supportedLanguage", "supportedLanguages", &PackageData::supportedLanguages, byCode),
    element("descriptionLanguage", "descriptionLanguages", &PackageData::descriptionLanguages,
            byCode),
    TextsRow<PackageData>(),
    element("robotRequirement", "robotRequirements", &PackageData::robotRequirements),
    element("brioRequirement", "brioRequirements", &PackageData::brioRequirements),
    element("behavior", "behaviors", &PackageData::behaviors),
    element("dialog", "dialogs", &PackageData::dialogs),
    element("service", "services", &PackageData::services),
};
template<>
inline constexpr auto elementsOf<Texts<PackageData>> = std::tuple{
    element("name", "names", &PackageData::names),
    element("description", "descriptions", &PackageData::descriptions),
};

template<>
inline constexpr auto attributesOf<RobotRequirement> = std::tuple{
    attribute(required, "model", &RobotRequirement::model),
    attribute(optional, "minHeadVersion", &RobotRequirement::minHeadVersion),
    attribute(optional, "maxHeadVersion", &RobotRequirement::maxHeadVersion),
    attribute(optional, "minBodyVersion", &RobotRequirement::minBodyVersion),
    attribute(optional, "maxBodyVersion", &RobotRequirement::maxBodyVersion),
};

template<>
inline constexpr auto attributesOf<BrioRequirement> = std::tuple{
    attribute(optional, "minVersion", &BrioRequirement::minVersion),
    attribute(optional, "maxVersion", &BrioRequirement::maxVersion),
};

template<>
inline constexpr auto attributesOf<BehaviorData> = std::tuple{
    attribute(keyed, "path", &BehaviorData::path),
    attribute(optional, "nature", &BehaviorData::nature),
    attribute(flag, "userRequestable", &BehaviorData::userRequestable),
};
template<>
inline constexpr auto elementsOf<BehaviorData> = std::tuple{
    element("permission", "permissions", &BehaviorData::permissions),
    element("condition", "conditions", &BehaviorData::conditions, byPurpose),
    TextsRow<BehaviorData>(),
};
template<>
inline constexpr auto elementsOf<Texts<BehaviorData>> = std::tuple{
    element("name", "names", &BehaviorData::names),
    element("description", "descriptions", &BehaviorData::descriptions),
    element("tag", "tags", &BehaviorData::tags),
    element("triggerSentence", "triggerSentences", &BehaviorData::triggerSentences),
    element("loadingResponse", "loadingResponses", &BehaviorData::loadingResponses),
};

template<>
inline constexpr auto attributesOf<DialogData> = std::tuple{
    attribute(keyed, "topicName", &DialogData::topicName),
    attribute(optional, "typeVersion", &DialogData::typeVersion),
};
template<>
inline constexpr auto elementsOf<DialogData> = std::tuple{
    element("topic", "topics", &DialogData::topics, byLanguage),
};

template<>
inline constexpr auto attributesOf<PackageService> = std::tuple{
    attribute(keyed, "name", &PackageService::name),
    attribute(flag, "autoRun", &PackageService::autoRun),
};
template<>
inline constexpr auto elementsOf<PackageService> = std::tuple{
    element("execStart", &PackageService::execStart),
    withEmptyTexts(element("property", "properties", &PackageService::properties, byName)),
};

// Generated from the tables.

/// The owners with child elements, in the order of their children's numbers.
template<typename... Owner>
struct OwnerList {};
using Owners = OwnerList<PackageData, Texts<PackageData>, BehaviorData, Texts<BehaviorData>,
                         DialogData, PackageService>;

template<typename Owner>
inline constexpr std::size_t childCount =
    std::tuple_size_v<std::decay_t<decltype(elementsOf<Owner>)>>;

/// The number of an owner's first child element, or one past the last number if there is no owner.
template<typename Owner, typename... All>
constexpr std::size_t numberOfFirstChild(OwnerList<All...> /*all*/) {
    auto number = std::size_t(Element::FirstField);
    bool isBefore = true;
    ((isBefore = isBefore && !std::is_same_v<Owner, All>, number += isBefore ? childCount<All> : 0),
     ...);
    return number;
}

/// One past the greatest number of a known element.
inline constexpr std::size_t elementCount = numberOfFirstChild<void>(Owners());
static_assert(elementCount <= std::size_t(Element::None));

template<typename Owner>
constexpr auto makeChildren() {
    std::array<Element, childCount<Owner>> children{};
    for (std::size_t i = 0; i < children.size(); ++i)
        children[i] = Element(numberOfFirstChild<Owner>(Owners()) + i);
    return children;
}

template<typename Owner>
inline constexpr auto childrenOf = makeChildren<Owner>();

/// Calls `visit(element, row)` for each child element of an owner.
template<typename Owner, typename Visit>
constexpr void forEachElement(Visit &&visit) {
    std::apply(
        [&](const auto &...row) {
            std::size_t i = 0;
            (visit(childrenOf<Owner>[i++], row), ...);
        },
        elementsOf<Owner>);
}

template<typename Owner>
inline constexpr auto attributeRules = std::apply(
    [](const auto &...row) { return std::array<AttributeRule, sizeof...(row)>{row.rule...}; },
    attributesOf<Owner>);

/// The members of an owner that have rows.
template<typename Owner>
constexpr auto membersOf() {
    return std::apply([](const auto &...row) { return std::tuple_cat(row.members()...); },
                      std::tuple_cat(attributesOf<Owner>, elementsOf<Owner>));
}

inline const BehaviorData &dataOf(const BehaviorInfo &behavior) {
    return RecordAccess::data(behavior);
}
inline const DialogData &dataOf(const DialogInfo &dialog) {
    return RecordAccess::data(dialog);
}
template<typename Plain>
const Plain &dataOf(const Plain &plain) {
    return plain;
}
template<typename Record>
using DataOf = std::decay_t<decltype(dataOf(std::declval<const Record &>()))>;

template<typename Data, typename = void>
inline constexpr bool hasExtras = false;
template<typename Data>
inline constexpr bool hasExtras<Data, std::void_t<decltype(&Data::extras)>> = true;

template<typename Value>
inline constexpr bool isEntryList = false;
template<typename Entry>
inline constexpr bool isEntryList<std::vector<Entry>> = !std::is_same_v<Entry, std::string>;

template<typename Value>
inline constexpr bool isTexts = false;
template<typename Data>
inline constexpr bool isTexts<Texts<Data>> = true;

/// The child element of an owner with an equal row.
template<typename Owner, typename Row>
constexpr Element elementWith(const Row &wanted) {
    Element found = Element::None;
    forEachElement<Owner>([&](Element child, const auto &row) {
        if constexpr (std::is_same_v<decltype(row), const Row &>)
            found = row.members() == wanted.members() ? child : found;
    });
    return found;
}

template<typename Data, typename Value>
constexpr Element elementOf(Value Data::*member) {
    return elementWith<Data>(element("", "", member));
}

/// The element of a record's text blocks.
template<typename Data>
constexpr Element textsOf() {
    return elementWith<Data>(TextsRow<Data>());
}

/// Drops the texts of a record outside the description languages, and its text lists outside the
/// supported ones.
template<typename Data>
void trimTexts(Data &data, const KeySet &descriptionCodes, const KeySet &supportedCodes) {
    forEachElement<Texts<Data>>([&](Element /*text*/, const auto &row) {
        using Value = typename std::decay_t<decltype(row)>::Value;
        keepOnly(data.*row.member,
                 std::is_same_v<Value, TextMap> ? descriptionCodes : supportedCodes);
    });
    dropChildren(data.extras, textsOf<Data>(), [&](const std::string &code) {
        return !descriptionCodes.contains(code) && !supportedCodes.contains(code);
    });
}

/// The index of a record's key attribute, -1 if it has none.
template<typename Data>
constexpr int keyAttributeOf() {
    int key = -1;
    int i = 0;
    for (const AttributeRule &rule : attributeRules<Data>) {
        key = rule.kind == AttributeKind::Key ? i : key;
        ++i;
    }
    return key;
}

/// Converts to any member of an aggregate, to count them.
struct AnyValue {
    template<typename Value>
    operator Value() const; // NOLINT(google-explicit-constructor)
};

template<typename Data, typename = void, typename... Values>
inline constexpr std::size_t memberCount = sizeof...(Values) - 1;
template<typename Data, typename... Values>
inline constexpr std::size_t
    memberCount<Data, std::void_t<decltype(Data{Values()...})>, Values...> =
        memberCount<Data, void, Values..., AnyValue>;

template<typename Data>
bool equalFields(const Data &a, const Data &b) {
    constexpr auto members = membersOf<Data>();
    static_assert(std::tuple_size_v<decltype(members)> + hasExtras<Data> == memberCount<Data>,
                  "each member but the extras needs a row");
    return std::apply([&](auto... member) { return ((a.*member == b.*member) && ...); }, members);
}

} // namespace Tano
