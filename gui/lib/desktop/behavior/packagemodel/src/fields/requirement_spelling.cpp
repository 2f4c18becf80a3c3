#include "requirement_spelling.h"

#include "../package_info_data.h"

#include <algorithm>
#include <utility>

namespace Zel::PackageModel {
namespace {

template<typename Requirement>
struct SpellingKind;

template<>
struct SpellingKind<RobotRequirement> {
    using Record = Tano::RobotRequirement;
    template<typename Data>
    static auto &listOf(Data &data) {
        return data.robotRequirements;
    }
    static constexpr auto records = &Tano::PackageInfo::robotRequirements;
    static constexpr auto replaceAt = &Tano::PackageInfo::replaceRobotRequirement;
    static constexpr auto toModel = &fromTanoRobotRequirement;
    static constexpr auto toRecord = &toTanoRobotRequirement;
    static constexpr std::pair<const char *, std::string Record::*> fields[]{
        {"model", &Record::model},
        {"minHeadVersion", &Record::minHeadVersion},
        {"maxHeadVersion", &Record::maxHeadVersion},
        {"minBodyVersion", &Record::minBodyVersion},
        {"maxBodyVersion", &Record::maxBodyVersion}};
};

template<>
struct SpellingKind<BrioRequirement> {
    using Record = Tano::BrioRequirement;
    template<typename Data>
    static auto &listOf(Data &data) {
        return data.brioRequirements;
    }
    static constexpr auto records = &Tano::PackageInfo::brioRequirements;
    static constexpr auto replaceAt = &Tano::PackageInfo::replaceBrioRequirement;
    static constexpr auto toModel = &fromTanoBrioRequirement;
    static constexpr auto toRecord = &toTanoBrioRequirement;
    static constexpr std::pair<const char *, std::string Record::*> fields[]{
        {"minVersion", &Record::minVersion}, {"maxVersion", &Record::maxVersion}};
};

template<typename Requirement>
bool hasOddVersions(const Tano::PackageInfo &record) {
    using Kind = SpellingKind<Requirement>;
    const auto &records = (record.*Kind::records)();
    return !std::all_of(records.begin(), records.end(), [](const auto &each) {
        return Kind::toRecord(Kind::toModel(each)) == each;
    });
}

// `record` with all but one field taken from `others`.
template<typename Requirement, typename Record>
Record withOthers(Record record, const Record &others, const std::string &field) {
    for (const auto &[name, member] : SpellingKind<Requirement>::fields) {
        if (name != field)
            record.*member = others.*member;
    }
    return record;
}

// Repeats an edit in the requirements as originally written.
template<typename Requirement, typename Records>
void follow(const Edit &edit, const Records &after, Records &spelled) {
    const auto &steps = edit.path.steps();
    const auto &selectors = steps.front().selectors;
    const int size = int(spelled.size());
    if (edit.action == Edit::Action::Insert) {
        const int index = std::clamp(edit.index, 0, size);
        if (index < int(after.size()))
            spelled.insert(spelled.begin() + index, after[std::size_t(index)]);
        return;
    }
    const auto index = selectors.empty() ? std::nullopt : selectors.front().toIndex();
    if (!index || *index >= size)
        return;
    const auto at = spelled.begin() + *index;
    if (edit.action == Edit::Action::Remove && steps.size() == 1) {
        spelled.erase(at);
    } else if (edit.action == Edit::Action::Move && edit.index >= 0 && edit.index < size) {
        const auto moved = *at;
        spelled.erase(at);
        spelled.insert(spelled.begin() + edit.index, moved);
    } else if (*index < int(after.size())) {
        const auto &changed = after[std::size_t(*index)];
        *at =
            steps.size() == 1 ? changed : withOthers<Requirement>(changed, *at, steps.back().field);
    }
}

template<typename Requirement>
void restore(PackageInfoModel &package, const Edit &edit, const Tano::PackageInfo &before) {
    using Kind = SpellingKind<Requirement>;
    auto &data = ChildAccess::data(package);
    auto &list = Kind::listOf(data);
    auto spelled = (before.*Kind::records)();
    follow<Requirement>(edit, (data.record().*Kind::records)(), spelled);
    if (int(spelled.size()) != list.items.size())
        return; // an observer has edited the list
    for (int i = 0; i < list.items.size(); ++i) {
        const auto &record = spelled[std::size_t(i)];
        if (Kind::toModel(record) == list.items.at(i))
            (data.edit().*Kind::replaceAt)(i, record);
    }
    list.isMirrored = false;
}

} // namespace

bool hasOddVersions(const Tano::PackageInfo &record, const Tano::FieldPath &path) {
    const std::string &first = path.steps().front().field;
    return first == "robotRequirements"  ? hasOddVersions<RobotRequirement>(record)
           : first == "brioRequirements" ? hasOddVersions<BrioRequirement>(record)
                                         : false;
}

void restoreSpelling(PackageInfoModel &package, const Edit &edit, const Tano::PackageInfo &before) {
    const std::string &first = edit.path.steps().front().field;
    if (first == "robotRequirements")
        restore<RobotRequirement>(package, edit, before);
    else if (first == "brioRequirements")
        restore<BrioRequirement>(package, edit, before);
}

} // namespace Zel::PackageModel
