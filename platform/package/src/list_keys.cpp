#include "list_keys.h"

namespace Tano {
namespace {

template<typename Entry, typename Key>
std::vector<std::string> keysOf(const std::vector<Entry> &entries, Key &&key) {
    std::vector<std::string> keys;
    keys.reserve(entries.size());
    for (const Entry &entry : entries)
        keys.push_back(key(entry));
    return keys;
}

std::string joined(std::initializer_list<std::string> fields) {
    std::string key;
    for (const std::string &field : fields)
        (key += field) += '\n';
    return key;
}

} // namespace

std::vector<std::string> listKeys(const PackageData &package, const Extras::ListId &id) {
    switch (id.first) {
    case Element::SupportedLanguage:
        return package.supportedLanguages;
    case Element::DescriptionLanguage:
        return package.descriptionLanguages;
    case Element::RobotRequirement:
        return keysOf(package.robotRequirements, [](const RobotRequirement &r) {
            return joined(
                {r.model, r.minHeadVersion, r.maxHeadVersion, r.minBodyVersion, r.maxBodyVersion});
        });
    case Element::BrioRequirement:
        return keysOf(package.brioRequirements, [](const BrioRequirement &r) {
            return joined({r.minVersion, r.maxVersion});
        });
    case Element::Behavior:
        return keysOf(package.behaviors, [](const BehaviorInfo &b) { return b.path(); });
    case Element::Dialog:
        return keysOf(package.dialogs, [](const DialogInfo &d) { return d.topicName(); });
    case Element::Service:
        return keysOf(package.services, [](const PackageService &s) { return s.name; });
    default:
        return {};
    }
}

std::vector<std::string> listKeys(const BehaviorData &behavior, const Extras::ListId &id) {
    switch (id.first) {
    case Element::Permission:
        return behavior.permissions;
    case Element::Condition:
        return listOf(behavior.conditions, id.second);
    default:
        return {};
    }
}

std::vector<std::string> listKeys(const BehaviorData &behavior, const std::string &language,
                                  const Extras::ListId &id) {
    switch (id.first) {
    case Element::Tag:
        return listOf(behavior.tags, language);
    case Element::TriggerSentence:
        return listOf(behavior.triggerSentences, language);
    case Element::LoadingResponse:
        return listOf(behavior.loadingResponses, language);
    default:
        return {};
    }
}

} // namespace Tano
