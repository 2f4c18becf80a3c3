#pragma once

#include "record_fields.h"

#include <string>
#include <vector>

namespace Tano {

/// The key of a record, empty if it has none.
template<typename Data>
const std::string &keyOf(const Data &data) {
    constexpr int key = keyAttributeOf<Data>();
    if constexpr (key >= 0) {
        return data.*std::get<std::size_t(key)>(attributesOf<Data>).member;
    } else {
        static const std::string none;
        return none;
    }
}

/// Distinguishes a record within its list: its key or, without one, all of its fields.
template<typename Data>
std::string distinguishingText(const Data &data) {
    if constexpr (keyAttributeOf<Data>() >= 0) {
        return keyOf(data);
    } else {
        std::string all;
        std::apply([&](auto... member) { (((all += data.*member) += '\n'), ...); },
                   membersOf<Data>());
        return all;
    }
}

/// The keys of a list. `language` is that of its text block.
template<typename Owner, typename Data>
std::vector<std::string> listKeys(const Data &data, const std::string &language,
                                  const Extras::ListId &id) {
    std::vector<std::string> keys;
    forEachElement<Owner>([&](Element child, const auto &row) {
        using Value = typename std::decay_t<decltype(row)>::Value;
        if (child != id.first)
            return;
        if constexpr (isEntryList<Value>) {
            keys.reserve((data.*row.member).size());
            for (const auto &entry : data.*row.member)
                keys.push_back(distinguishingText(dataOf(entry)));
        } else if constexpr (std::is_same_v<Value, TextListMap>) {
            keys = listOf(data.*row.member, row.key.size() == 0 ? language : id.second);
        } else if constexpr (std::is_convertible_v<Value, std::vector<std::string>>) {
            keys = data.*row.member;
        }
    });
    return keys;
}

} // namespace Tano
