#pragma once

#include <tano/package_info.h>

#include "extras.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <set>
#include <string>
#include <unordered_set>
#include <vector>

namespace Tano {

/// Moves the element at `from` so that its new index is `to`.
template<typename Element>
void moveWithin(std::vector<Element> &list, int from, int to) {
    Element moved = std::move(list[std::size_t(from)]);
    const auto begin = list.begin();
    if (from < to)
        std::move(begin + from + 1, begin + to + 1, begin + from);
    else
        std::move_backward(begin + to, begin + from, begin + from + 1);
    list[std::size_t(to)] = std::move(moved);
}

/// A list of distinct texts in insertion order. Removals from a long list are deferred until it is
/// read, so that emptying it text by text takes linear time.
class UniqueTexts {
public:
    operator const std::vector<std::string> &() const { return texts(); } // NOLINT: it is a list

    std::size_t size() const { return texts().size(); }
    /// The text must be new.
    void append(const std::string &text) {
        if (m_removed.count(text) != 0)
            static_cast<void>(texts());
        if (isIndexed())
            m_known.insert(text);
        m_texts.push_back(text);
    }
    bool contains(const std::string &text) const {
        if (m_texts.size() < indexedFrom && m_removed.empty())
            return std::find(m_texts.begin(), m_texts.end(), text) != m_texts.end();
        if (!isIndexed())
            m_known.insert(m_texts.begin(), m_texts.end());
        return m_known.count(text) != 0;
    }
    /// Inserts a new text before an index, which is clamped to the list.
    void insert(int index, const std::string &text) {
        static_cast<void>(texts());
        if (isIndexed())
            m_known.insert(text);
        m_texts.insert(m_texts.begin() + std::clamp(index, 0, int(m_texts.size())), text);
    }
    friend void moveWithin(UniqueTexts &list, int from, int to) {
        static_cast<void>(list.texts());
        Tano::moveWithin(list.m_texts, from, to);
    }
    /// The text must be in the list.
    void remove(const std::string &text) {
        if (isIndexed()) {
            m_known.erase(text);
            m_removed.insert(text);
        } else {
            m_texts.erase(std::remove(m_texts.begin(), m_texts.end(), text), m_texts.end());
        }
    }

    friend bool operator==(const UniqueTexts &a, const UniqueTexts &b) {
        return a.texts() == b.texts();
    }

private:
    static constexpr std::size_t indexedFrom = 32;

    [[nodiscard]] bool isIndexed() const { return !m_known.empty() || !m_removed.empty(); }

    const std::vector<std::string> &texts() const {
        if (!m_removed.empty()) {
            const auto isRemoved = [&](const auto &text) { return m_removed.count(text) != 0; };
            m_texts.erase(std::remove_if(m_texts.begin(), m_texts.end(), isRemoved), m_texts.end());
            m_removed.clear();
        }
        return m_texts;
    }

    mutable std::vector<std::string> m_texts;
    mutable std::unordered_set<std::string> m_known;   // built at the first search of a long list
    mutable std::unordered_set<std::string> m_removed; // texts that are still in the list
};

struct BehaviorData {
    std::string path;
    std::string nature;
    bool userRequestable = false;
    std::vector<std::string> permissions;
    TextListMap conditions;
    TextMap names;
    TextMap descriptions;
    TextListMap tags;
    TextListMap triggerSentences;
    TextListMap loadingResponses;
    ExtrasPointer extras;
};

struct DialogData {
    std::string topicName;
    std::string typeVersion;
    TextMap topics;
    ExtrasPointer extras;
};

struct PackageData {
    std::string uuid;
    std::string version;
    std::string typeVersion;
    std::string installer;
    std::string author;
    std::string organization;
    std::string date;
    std::string channel;
    std::string path;
    UniqueTexts supportedLanguages;
    UniqueTexts descriptionLanguages;
    TextMap names;
    TextMap descriptions;
    std::vector<RobotRequirement> robotRequirements;
    std::vector<BrioRequirement> brioRequirements;
    std::vector<BehaviorInfo> behaviors;
    std::vector<DialogInfo> dialogs;
    std::vector<PackageService> services;
    ExtrasPointer extras;
};

/// Converts between records and their data, for this library's sources.
class RecordAccess {
public:
    /// The data of a record, or a shared default if it has none.
    template<typename Record>
    static const auto &data(const Record &record) {
        using Data = typename decltype(record.m_data)::element_type;
        static const Data empty;
        return record.m_data ? *record.m_data : empty;
    }

    /// The data of a record for modification, detached first.
    template<typename Record>
    static auto &edit(Record &record) {
        using Data = typename decltype(record.m_data)::element_type;
        if (!record.m_data)
            record.m_data = std::make_shared<Data>();
        else if (record.m_data.use_count() != 1)
            record.m_data = std::make_shared<Data>(*record.m_data);
        return *record.m_data;
    }

    template<typename Record, typename Data>
    static void assign(Record &record, std::shared_ptr<Data> data) {
        record.m_data = std::move(data);
    }

    template<typename Record>
    static bool sharesData(const Record &a, const Record &b) {
        return a.m_data == b.m_data;
    }
};

/// The text for `key`, or a shared empty text.
inline const std::string &textOf(const TextMap &texts, const std::string &key) {
    static const std::string empty;
    const auto it = texts.find(key);
    return it == texts.end() ? empty : it->second;
}

/// The list for `key`, or a shared empty list.
inline const std::vector<std::string> &listOf(const TextListMap &lists, const std::string &key) {
    static const std::vector<std::string> empty;
    const auto it = lists.find(key);
    return it == lists.end() ? empty : it->second;
}

/// A set of keys for fast lookup. Refers to the list that it was built from.
class KeySet {
public:
    explicit KeySet(const std::vector<std::string> &keys)
        : m_keys(keys.begin(), keys.end()) {
        std::sort(m_keys.begin(), m_keys.end());
    }
    explicit KeySet(const std::set<std::string> &keys)
        : m_keys(keys.begin(), keys.end()) {}
    bool contains(std::string_view key) const {
        return std::binary_search(m_keys.begin(), m_keys.end(), key);
    }

private:
    std::vector<std::string_view> m_keys;
};

/// Erases the entries of all other keys.
template<typename Map>
void keepOnly(Map &map, const KeySet &keys) {
    for (auto it = map.begin(); it != map.end();)
        it = keys.contains(it->first) ? std::next(it) : map.erase(it);
}

} // namespace Tano
