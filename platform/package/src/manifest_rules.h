#pragma once

#include "record_fields.h"

#include <algorithm>

// The rules of the elements, generated from the field tables, and the limits that follow from them.

namespace Tano {

/// The rule of the element that holds a record.
template<typename Data>
constexpr ElementRule recordRule(std::string_view name, std::string_view field) {
    return {name,
            field,
            childCount<Data> != 0 ? Content::Elements : Content::Nothing,
            Occurs::AnyTimes,
            attributeRules<Data>,
            keyAttributeOf<Data>(),
            false,
            hasExtras<Data>,
            childrenOf<Data>};
}

template<typename Data>
constexpr ElementRule ruleFor(const TextsRow<Data> & /*row*/) {
    return {"texts", "",    Content::Elements,      Occurs::OncePerKey, byLanguage, 0,
            true,    false, childrenOf<Texts<Data>>};
}

template<typename Data, typename Value>
constexpr ElementRule ruleFor(const ElementRow<Data, Value> &row) {
    if constexpr (isEntryList<Value>) {
        return recordRule<DataOf<typename Value::value_type>>(row.name, row.field);
    } else {
        constexpr bool isCode = std::is_same_v<Value, UniqueTexts>;
        constexpr bool isText = std::is_same_v<Value, std::string>;
        constexpr bool isMap = std::is_same_v<Value, TextMap>;
        const bool hasKey = row.key.size() != 0;
        const Occurs perKey = isCode || hasKey ? Occurs::OncePerKey : Occurs::Once;
        return {row.name,
                row.field,
                isCode ? Content::Nothing : Content::Text,
                isCode || isText || isMap ? perKey : Occurs::AnyTimes,
                row.key,
                hasKey ? 0 : -1,
                hasKey && !isCode,
                false,
                {}};
    }
}

using ElementRules = std::array<ElementRule, elementCount>;

template<typename... Owner>
constexpr void addRules(ElementRules &rules, OwnerList<Owner...> /*owners*/) {
    (forEachElement<Owner>(
         [&](Element element, const auto &row) { rules[std::size_t(element)] = ruleFor(row); }),
     ...);
}

/// The rules of all elements, indexed by number.
constexpr ElementRules makeRules() {
    ElementRules rules{};
    ElementRule &root = rules[std::size_t(Element::Package)];
    root = recordRule<PackageData>("package", "");
    root.occurs = Occurs::Once;
    addRules(rules, Owners());
    return rules;
}

/// The longest of these lists in any rule.
template<typename Row>
constexpr std::size_t longestList(Rows<Row> ElementRule::*list) {
    std::size_t longest = 0;
    for (const ElementRule &rule : makeRules())
        longest = std::max(longest, (rule.*list).size());
    return longest;
}

/// The maximum nesting depth of known elements, starting from an element.
constexpr std::size_t depthFrom(const ElementRules &rules, Element element) {
    std::size_t deepest = 0;
    for (const Element child : rules[std::size_t(element)].children)
        deepest = std::max(deepest, depthFrom(rules, child));
    return 1 + deepest;
}

inline constexpr std::size_t mostKnownAttributes = longestList(&ElementRule::attributes);
inline constexpr std::size_t mostChildren = longestList(&ElementRule::children);
inline constexpr std::size_t deepestKnown = depthFrom(makeRules(), Element::Package);

} // namespace Tano
