#pragma once

#include "behavior_info_data.h"
#include "child_list.h"
#include "dialog_info_data.h"
#include "localized_texts.h"
#include "service_info_data.h"

#include <packagemodel/package_info_model.h>

#include <cstdint>
#include <memory>
#include <type_traits>

namespace Zel {

struct PackageIcon;

/// The requirements of one kind.
template<typename Requirement>
struct RequirementList {
    QVector<Requirement> items;
    bool isMirrored =
        false; // whether the record's list equals them; a loaded one may spell versions differently
};

struct PACKAGEMODEL_NO_EXPORT PackageInfoModel::Data {
    explicit Data(PackageInfoModel *package, Tano::PackageInfo info = {});

    const Tano::PackageInfo &record() const { return m_record; }
    Tano::PackageInfo &edit() {
        ++m_revision;
        return m_record;
    }
    /// Changes with every edit of the record, except for those that copy a child's record into it.
    std::uint64_t revision() const { return m_revision; }
    template<typename Change>
    void editAnnounced(Change change) {
        change(edit());
    }
    template<typename... Parameters, typename... Arguments>
    void announce(void (PackageInfoModel::*signal)(Parameters...), const Arguments &...arguments) {
        Q_EMIT(behaviors.package()->*signal)(arguments...);
    }
    /// Marks the record's lists as out of sync after the record was replaced.
    void setOutOfStep();

    using LocalizedTextField =
        LocalizedField<PackageInfoModel, Data, Tano::PackageInfo, CachedTexts>;
    static const LocalizedTextField nameField;
    static const LocalizedTextField descriptionField;

    /// One of the two lists of languages.
    struct LanguageList {
        ByLanguage<RobotLanguage> Data::*cache;
        const std::vector<std::string> &(Tano::PackageInfo::*codes)() const;
        bool (Tano::PackageInfo::*move)(int from, int to);
        void (PackageInfoModel::*moved)(const RobotLanguage &language, int from, int to);
    };
    static const LanguageList supportedList;
    static const LanguageList descriptionList;

    SoftwareVersion version;
    ByLanguage<RobotLanguage> supportedLanguages;
    CachedTexts names;
    ByLanguage<RobotLanguage> descriptionLanguages;
    CachedTexts descriptions;
    RequirementList<RobotRequirement> robotRequirements;
    RequirementList<BrioRequirement> brioRequirements;
    ChildList<BehaviorInfoModel> behaviors;
    ChildList<DialogInfoModel> dialogs;
    ChildList<ServiceInfoModel> services;
    std::shared_ptr<PackageIcon> icon; // null until the first one is set
    std::uint64_t wholeChanges = 0;    // the number of loads and assignments

private:
    Tano::PackageInfo m_record;
    std::uint64_t m_revision = 0;
};

/// The package's children of one kind.
template<typename Child>
ChildList<Child> &childrenOf(const PackageInfoModel &package) {
    auto &data = ChildAccess::data(package);
    if constexpr (std::is_same_v<Child, BehaviorInfoModel>)
        return data.behaviors;
    else if constexpr (std::is_same_v<Child, DialogInfoModel>)
        return data.dialogs;
    else
        return data.services;
}

} // namespace Zel
