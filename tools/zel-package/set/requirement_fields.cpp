#include "requirement_fields.h"

#include <array>

namespace ZelPackage {
namespace {

using Zel::BrioRequirement;
using Zel::PackageInfoModel;
using Zel::RobotRequirement;

// The package's operations on one kind of requirements.
template<typename Requirement>
struct Requirements {
    QVector<Requirement> (PackageInfoModel::*all)() const;
    void (PackageInfoModel::*append)(const Requirement &requirement);
    bool (PackageInfoModel::*update)(int index, const Requirement &requirement);
};

constexpr Requirements<RobotRequirement> robotRequirements{
    &PackageInfoModel::robotRequirements, &PackageInfoModel::addRobotRequirement,
    &PackageInfoModel::updateRobotRequirement};
constexpr Requirements<BrioRequirement> brioRequirements{&PackageInfoModel::brioRequirements,
                                                         &PackageInfoModel::addBrioRequirement,
                                                         &PackageInfoModel::updateBrioRequirement};

template<typename Requirement, Zel::SoftwareVersion Requirement::*bound>
bool setBound(const Edit &edit, Requirement &requirement, const QStringList &) {
    const auto version = edit.version();
    if (version)
        requirement.*bound = *version;
    return version.has_value();
}

bool setModel(const Edit &edit, RobotRequirement &requirement, const QStringList &) {
    requirement.model = edit.value();
    return true;
}

// The rows change a copy of the requirement.
constexpr std::array robotFields{
    FieldRow<RobotRequirement>{"model", "", setModel},
    FieldRow<RobotRequirement>{"minHeadVersion", "",
                               setBound<RobotRequirement, &RobotRequirement::minHeadVersion>},
    FieldRow<RobotRequirement>{"maxHeadVersion", "",
                               setBound<RobotRequirement, &RobotRequirement::maxHeadVersion>},
    FieldRow<RobotRequirement>{"minBodyVersion", "",
                               setBound<RobotRequirement, &RobotRequirement::minBodyVersion>},
    FieldRow<RobotRequirement>{"maxBodyVersion", "",
                               setBound<RobotRequirement, &RobotRequirement::maxBodyVersion>},
};

constexpr std::array brioFields{
    FieldRow<BrioRequirement>{"minVersion", "",
                              setBound<BrioRequirement, &BrioRequirement::minVersion>},
    FieldRow<BrioRequirement>{"maxVersion", "",
                              setBound<BrioRequirement, &BrioRequirement::maxVersion>},
};

template<typename Requirement, typename Table>
bool editRequirement(const Edit &edit, PackageInfoModel &package, const QString &key,
                     const Requirements<Requirement> &kind, const Table &table) {
    const QVector<Requirement> all = (package.*kind.all)();
    const auto size = int(all.size());
    const auto index = key == appendKey ? size : edit.index(key, size);
    if (!index)
        return false;
    Requirement requirement = all.value(*index);
    if (!setField(table, edit, requirement, 1))
        return false;
    if (*index == size)
        (package.*kind.append)(requirement);
    else
        (package.*kind.update)(*index, requirement);
    return true;
}

} // namespace

bool editRobotRequirement(const Edit &edit, PackageInfoModel &package, const QStringList &keys) {
    return editRequirement(edit, package, keys.constFirst(), robotRequirements, robotFields);
}

bool editBrioRequirement(const Edit &edit, PackageInfoModel &package, const QStringList &keys) {
    return editRequirement(edit, package, keys.constFirst(), brioRequirements, brioFields);
}

} // namespace ZelPackage
