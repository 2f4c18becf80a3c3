#include "meta_types.h"

#include <packagemodel/package_info_model.h>

namespace Zel {
namespace {

bool registerAll() {
    qRegisterMetaType<BehaviorInfoModel *>("BehaviorInfoModel*");
    qRegisterMetaType<const BehaviorInfoModel *>("const BehaviorInfoModel*");
    qRegisterMetaType<BrioRequirement>("BrioRequirement");
    qRegisterMetaType<DialogInfoModel *>("DialogInfoModel*");
    qRegisterMetaType<RobotLanguage>("RobotLanguage");
    qRegisterMetaType<RobotLanguages>("RobotLanguages");
    qRegisterMetaType<RobotRequirement>("RobotRequirement");
    qRegisterMetaType<ServiceInfoModel *>("ServiceInfoModel*");
    qRegisterMetaType<SoftwareVersion>("SoftwareVersion");
    qRegisterMetaType<Tano::BehaviorInfo>("Tano::BehaviorInfo");
    qRegisterMetaType<Tano::DialogInfo>("Tano::DialogInfo");
    qRegisterMetaType<Tano::PackageService>("Tano::PackageService");
    return true;
}

} // namespace

void registerMetaTypes() {
    static const bool registered = registerAll();
    Q_UNUSED(registered)
}

} // namespace Zel
