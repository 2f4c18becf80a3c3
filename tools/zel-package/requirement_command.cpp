#include "requirement_command.h"

#include <packagemodel/set_command.h>

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
    bool (PackageInfoModel::*remove)(int index);
};

constexpr Requirements<RobotRequirement> robotRequirements{
    &PackageInfoModel::robotRequirements, &PackageInfoModel::addRobotRequirement,
    &PackageInfoModel::updateRobotRequirement, &PackageInfoModel::removeRobotRequirement};
constexpr Requirements<BrioRequirement> brioRequirements{
    &PackageInfoModel::brioRequirements, &PackageInfoModel::addBrioRequirement,
    &PackageInfoModel::updateBrioRequirement, &PackageInfoModel::removeBrioRequirement};

// Sets a requirement, or appends it when the index is just beyond the end.
template<typename Requirement>
class RequirementCommand : public Zel::PackageCommand {
public:
    RequirementCommand(PackageInfoModel *package, const Requirements<Requirement> &kind, int index,
                       const Requirement &requirement)
        : PackageCommand(package)
        , m_kind(kind)
        , m_index(index)
        , m_isAppended(index == (package->*kind.all)().size())
        , m_new(requirement)
        , m_old((package->*kind.all)().value(index)) {
        setText(QCoreApplication::translate("zel-package", "Set a requirement"));
    }

    void redo() override {
        if (m_isAppended)
            (model()->*m_kind.append)(m_new);
        else
            (model()->*m_kind.update)(m_index, m_new);
    }

    void undo() override {
        if (m_isAppended)
            (model()->*m_kind.remove)(m_index);
        else
            (model()->*m_kind.update)(m_index, m_old);
    }

private:
    const Requirements<Requirement> &m_kind;
    int m_index;
    bool m_isAppended;
    Requirement m_new;
    Requirement m_old;
};

template<typename Requirement, Zel::SoftwareVersion Requirement::*bound>
Command setBound(const Edit &edit, Requirement &requirement, const QStringList &) {
    const auto version = edit.version();
    if (!version)
        return {};
    requirement.*bound = *version;
    return std::make_unique<QUndoCommand>();
}

Command setModel(const Edit &edit, RobotRequirement &requirement, const QStringList &) {
    requirement.model = edit.value();
    return std::make_unique<QUndoCommand>();
}

// The rows change a copy of the requirement; their commands only say that they could.
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
Command editRequirement(const Edit &edit, PackageInfoModel &package, const QString &key,
                        const Requirements<Requirement> &kind, const Table &table) {
    const QVector<Requirement> all = (package.*kind.all)();
    const auto size = int(all.size());
    const auto index = key == appendKey ? size : edit.index(key, size);
    if (!index)
        return {};
    Requirement requirement = all.value(*index);
    if (!makeCommand(table, edit, requirement, 1))
        return {};
    return std::make_unique<RequirementCommand<Requirement>>(&package, kind, *index, requirement);
}

} // namespace

Command editRobotRequirement(const Edit &edit, PackageInfoModel &package, const QStringList &keys) {
    return editRequirement(edit, package, keys.constFirst(), robotRequirements, robotFields);
}

Command editBrioRequirement(const Edit &edit, PackageInfoModel &package, const QStringList &keys) {
    return editRequirement(edit, package, keys.constFirst(), brioRequirements, brioFields);
}

} // namespace ZelPackage
