#pragma once

#include <tano/package_info.h>

#include "extras.h"

#include <iterator>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace Tano {

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
    std::vector<std::string> supportedLanguages;
    std::vector<std::string> descriptionLanguages;
    TextMap names;
    TextMap descriptions;
    std::vector<RobotRequirement> robotRequirements;
    std::vector<BrioRequirement> brioRequirements;
    std::vector<BehaviorInfo> behaviors;
    std::vector<DialogInfo> dialogs;
    std::vector<PackageService> services;
    ExtrasPointer extras;
};

/// The way from a record to its data and back, for the sources of this library.
class RecordAccess {
public:
    /// The data of a record, which is a shared default where the record has none of its own.
    template<typename Record>
    static const auto &data(const Record &record) {
        using Data = typename decltype(record.m_data)::element_type;
        static const Data empty;
        return record.m_data ? *record.m_data : empty;
    }

    /// The data of a record, made its own, to be changed.
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

/// The text under `key`; a shared empty text where there is none.
inline const std::string &textOf(const TextMap &texts, const std::string &key) {
    static const std::string empty;
    const auto it = texts.find(key);
    return it == texts.end() ? empty : it->second;
}

/// The list under `key`; a shared empty list where there is none.
inline const std::vector<std::string> &listOf(const TextListMap &lists, const std::string &key) {
    static const std::vector<std::string> empty;
    const auto it = lists.find(key);
    return it == lists.end() ? empty : it->second;
}

/// Erases all but the entries of those keys.
template<typename Map>
void keepOnly(Map &map, const std::set<std::string> &keys) {
    for (auto it = map.begin(); it != map.end();)
        it = keys.count(it->first) != 0 ? std::next(it) : map.erase(it);
}

} // namespace Tano
