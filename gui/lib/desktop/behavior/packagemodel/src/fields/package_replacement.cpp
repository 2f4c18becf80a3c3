#include "package_replacement.h"

#include "../package_info_data.h"

#include <packagemodel/package_difference.h>

#include <QPointer>

#include <algorithm>

namespace Zel::PackageModel {
namespace {

template<typename Child>
void adoptRecords(ChildList<Child> &list,
                  const std::vector<typename ChildKind<Child>::Record> &all) {
    const auto &children = list.children();
    for (int i = 0; i < children.size(); ++i)
        ChildAccess::data(*children.at(i)).edit() = all[std::size_t(i)];
}

} // namespace

void replacePackage(PackageInfoModel &package, const Tano::PackageInfo &record) {
    const QPointer<PackageInfoModel> living(&package);
    PackageInfoModel target(record);
    // A new model uses every supported language for descriptions.
    for (const RobotLanguage &language : RobotLanguages(target.descriptionLanguages())) {
        const auto &codes = record.descriptionLanguages();
        if (std::find(codes.begin(), codes.end(), toUtf8(language.isoCode())) == codes.end())
            target.removeDescriptionLanguage(language);
    }
    apply(&package, edits(&package, &target));
    if (!living || !edits(&package, &target).isEmpty())
        return; // an observer has edited the package
    auto &data = ChildAccess::data(package);
    adoptRecords(data.behaviors, record.behaviors());
    adoptRecords(data.dialogs, record.dialogs());
    adoptRecords(data.services, record.services());
    data.edit() = record;
    data.robotRequirements.isMirrored = false;
    data.brioRequirements.isMirrored = false;
    data.behaviors.settle();
    data.dialogs.settle();
    data.services.settle();
}

} // namespace Zel::PackageModel
