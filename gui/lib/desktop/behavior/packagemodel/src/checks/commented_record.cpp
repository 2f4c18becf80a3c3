#include "commented_record.h"

#include <packagemodel/package_info_model.h>

#include <tano/kept_content.h>

#include <utility>

namespace Zel::PackageModel {

namespace {

Tano::PackageInfo packageOf(const Tano::BehaviorInfo &behavior) {
    Tano::PackageInfo package;
    package.addBehavior(behavior);
    return package;
}

// The record without behaviors.
Tano::PackageInfo ownRecordOf(const PackageInfoModel &package) {
    Tano::PackageInfo record = package.packageInfo();
    record.clearBehaviors();
    record.clearDialogs();
    for (const DialogInfoModel *dialog : package.dialogs())
        record.addDialog(dialog->toDialogInfo());
    record.clearServices();
    for (const ServiceInfoModel *service : package.services())
        record.addService(service->toPackageService());
    return record;
}

Tano::PackageInfo withPlaceholders(const Tano::PackageInfo &record) {
    static const std::string placeholder = "x";
    using Own = Tano::PackageInfo;
    Own outline = record;
    for (const auto &[get, set] :
         {std::pair(&Own::uuid, &Own::setUuid), std::pair(&Own::version, &Own::setVersion),
          std::pair(&Own::typeVersion, &Own::setTypeVersion),
          std::pair(&Own::installer, &Own::setInstaller), std::pair(&Own::author, &Own::setAuthor),
          std::pair(&Own::organization, &Own::setOrganization),
          std::pair(&Own::date, &Own::setDate), std::pair(&Own::channel, &Own::setChannel),
          std::pair(&Own::path, &Own::setPath)}) {
        if (!(outline.*get)().empty())
            (outline.*set)(placeholder);
    }
    for (const auto &[code, name] : record.names())
        outline.setName(name.empty() ? name : placeholder, code);
    for (const auto &[code, description] : record.descriptions())
        outline.setDescription(description.empty() ? description : placeholder, code);
    return outline;
}

} // namespace

bool hasIgnoreComments(const Tano::BehaviorInfo &behavior) {
    return Tano::hasComment(packageOf(behavior), ignoreMark);
}

bool hasUnknownContent(const Tano::BehaviorInfo &behavior) {
    return Tano::hasKeptNodes(packageOf(behavior));
}

Tano::PackageInfo syncedRecord(const PackageInfoModel &package) {
    Tano::PackageInfo record = ownRecordOf(package);
    for (const BehaviorInfoModel *behavior : package.behaviors())
        record.addBehavior(behavior->toBehaviorInfo());
    return record;
}

Tano::PackageInfo
withContentOf(const Tano::PackageInfo &record,
              const std::function<bool(const Tano::BehaviorInfo &behavior)> &isWanted) {
    Tano::PackageInfo reduced = record;
    for (std::size_t i = 0; i < record.behaviors().size(); ++i) {
        const Tano::BehaviorInfo &behavior = record.behaviors()[i];
        if (isWanted(behavior))
            continue;
        Tano::BehaviorInfo bare;
        bare.setPath(behavior.path());
        reduced.replaceBehavior(int(i), bare);
    }
    return reduced;
}

Tano::PackageInfo outlineOf(const Tano::PackageInfo &record) {
    return withContentOf(withPlaceholders(record), &hasIgnoreComments);
}

Tano::PackageInfo ownOutlineOf(const PackageInfoModel &package) {
    return withPlaceholders(ownRecordOf(package));
}

} // namespace Zel::PackageModel
