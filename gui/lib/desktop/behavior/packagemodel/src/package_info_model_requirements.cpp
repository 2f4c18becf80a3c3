#include <packagemodel/package_info_model.h>

#include "copies.h"
#include "package_info_data.h"

#include <QPointer>

#include <algorithm>

namespace Zel {
namespace {

// One kind of requirements: the record's operations, the conversion, and the notifications.
template<typename Requirement>
struct RequirementKind;

template<>
struct RequirementKind<RobotRequirement> {
    static constexpr auto clear = &Tano::PackageInfo::clearRobotRequirements;
    static constexpr auto append = &Tano::PackageInfo::addRobotRequirement;
    static constexpr auto replaceAt = &Tano::PackageInfo::replaceRobotRequirement;
    static constexpr auto removeAt = &Tano::PackageInfo::removeRobotRequirement;
    static constexpr auto move = &Tano::PackageInfo::moveRobotRequirement;
    static constexpr auto toRecord = &toTanoRobotRequirement;
    static constexpr auto added = &PackageInfoModel::robotRequirementAdded;
    static constexpr auto updated = &PackageInfoModel::robotRequirementUpdated;
    static constexpr auto removed = &PackageInfoModel::robotRequirementRemoved;
    static constexpr auto moved = &PackageInfoModel::robotRequirementMoved;
};

template<>
struct RequirementKind<BrioRequirement> {
    static constexpr auto clear = &Tano::PackageInfo::clearBrioRequirements;
    static constexpr auto append = &Tano::PackageInfo::addBrioRequirement;
    static constexpr auto replaceAt = &Tano::PackageInfo::replaceBrioRequirement;
    static constexpr auto removeAt = &Tano::PackageInfo::removeBrioRequirement;
    static constexpr auto move = &Tano::PackageInfo::moveBrioRequirement;
    static constexpr auto toRecord = &toTanoBrioRequirement;
    static constexpr auto added = &PackageInfoModel::brioRequirementAdded;
    static constexpr auto updated = &PackageInfoModel::brioRequirementUpdated;
    static constexpr auto removed = &PackageInfoModel::brioRequirementRemoved;
    static constexpr auto moved = &PackageInfoModel::brioRequirementMoved;
};

template<typename Requirement>
void resync(RequirementList<Requirement> &list, Tano::PackageInfo &record) {
    using Kind = RequirementKind<Requirement>;
    (record.*Kind::clear)();
    for (const Requirement &requirement : std::as_const(list.items))
        (record.*Kind::append)(Kind::toRecord(requirement));
    list.isMirrored = true;
}

template<typename Requirement>
void add(PackageInfoModel *model, Tano::PackageInfo &record, RequirementList<Requirement> &list,
         const Requirement &newRequirement) {
    using Kind = RequirementKind<Requirement>;
    const Requirement requirement = copyOf(newRequirement);
    list.items.append(requirement);
    if (list.isMirrored)
        (record.*Kind::append)(Kind::toRecord(requirement));
    else
        resync(list, record);
    Q_EMIT(model->*Kind::added)(requirement);
}

template<typename Requirement>
bool update(PackageInfoModel *model, Tano::PackageInfo &record, RequirementList<Requirement> &list,
            int index, const Requirement &newRequirement) {
    if (index < 0 || index >= list.items.size())
        return false;
    using Kind = RequirementKind<Requirement>;
    const Requirement requirement = copyOf(newRequirement);
    list.items[index] = requirement;
    if (!list.isMirrored || !(record.*Kind::replaceAt)(index, Kind::toRecord(requirement)))
        resync(list, record);
    Q_EMIT(model->*Kind::updated)(index, requirement);
    return true;
}

template<typename Requirement>
bool remove(PackageInfoModel *model, Tano::PackageInfo &record, RequirementList<Requirement> &list,
            int index) {
    if (index < 0 || index >= list.items.size())
        return false;
    using Kind = RequirementKind<Requirement>;
    list.items.removeAt(index);
    if (!list.isMirrored || !(record.*Kind::removeAt)(index))
        resync(list, record);
    Q_EMIT(model->*Kind::removed)(index);
    return true;
}

template<typename Requirement>
bool move(PackageInfoModel *model, Tano::PackageInfo &record, RequirementList<Requirement> &list,
          int from, int to) {
    using Kind = RequirementKind<Requirement>;
    const auto size = list.items.size();
    if (from < 0 || from >= size || to < 0 || to >= size)
        return false;
    if (from == to)
        return true;
    list.items.move(from, to);
    if (!list.isMirrored || !(record.*Kind::move)(from, to))
        resync(list, record);
    Q_EMIT(model->*Kind::moved)(from, to);
    return true;
}

} // namespace

void PackageInfoModel::appendRequirements(const Tano::PackageInfo &record) {
    for (const Tano::RobotRequirement &requirement : record.robotRequirements())
        m_data->robotRequirements.items.append(fromTanoRobotRequirement(requirement));
    for (const Tano::BrioRequirement &requirement : record.brioRequirements())
        m_data->brioRequirements.items.append(fromTanoBrioRequirement(requirement));
}

void PackageInfoModel::resyncRobotRequirements() {
    resync(m_data->robotRequirements, m_data->edit());
}

void PackageInfoModel::resyncBrioRequirements() {
    resync(m_data->brioRequirements, m_data->edit());
}

QVector<RobotRequirement> PackageInfoModel::robotRequirements() const {
    return m_data->robotRequirements.items;
}

RobotRequirement PackageInfoModel::robotRequirement(int i) const {
    return m_data->robotRequirements.items.value(i);
}

void PackageInfoModel::addRobotRequirement(const RobotRequirement &robotReq) {
    add(this, m_data->edit(), m_data->robotRequirements, robotReq);
}

bool PackageInfoModel::updateRobotRequirement(int robotReqIdx,
                                              const RobotRequirement &updatedRobotReq) {
    return update(this, m_data->edit(), m_data->robotRequirements, robotReqIdx, updatedRobotReq);
}

bool PackageInfoModel::removeRobotRequirement(int robotReqIdx) {
    return remove(this, m_data->edit(), m_data->robotRequirements, robotReqIdx);
}

void PackageInfoModel::insertRobotRequirement(int index, const RobotRequirement &robotReq) {
    const QPointer<PackageInfoModel> living(this);
    addRobotRequirement(robotReq);
    if (!living)
        return;
    const int last = static_cast<int>(m_data->robotRequirements.items.size()) - 1;
    moveRobotRequirement(last, std::clamp(index, 0, std::max(last, 0)));
}

bool PackageInfoModel::moveRobotRequirement(int from, int to) {
    return move(this, m_data->edit(), m_data->robotRequirements, from, to);
}

QVector<BrioRequirement> PackageInfoModel::brioRequirements() const {
    return m_data->brioRequirements.items;
}

BrioRequirement PackageInfoModel::brioRequirement(int i) const {
    return m_data->brioRequirements.items.value(i);
}

void PackageInfoModel::addBrioRequirement(const BrioRequirement &brioReq) {
    add(this, m_data->edit(), m_data->brioRequirements, brioReq);
}

bool PackageInfoModel::updateBrioRequirement(int brioReqIdx,
                                             const BrioRequirement &updatedBrioReq) {
    return update(this, m_data->edit(), m_data->brioRequirements, brioReqIdx, updatedBrioReq);
}

bool PackageInfoModel::removeBrioRequirement(int brioReqIdx) {
    return remove(this, m_data->edit(), m_data->brioRequirements, brioReqIdx);
}

void PackageInfoModel::insertBrioRequirement(int index, const BrioRequirement &brioReq) {
    const QPointer<PackageInfoModel> living(this);
    addBrioRequirement(brioReq);
    if (!living)
        return;
    const int last = static_cast<int>(m_data->brioRequirements.items.size()) - 1;
    moveBrioRequirement(last, std::clamp(index, 0, std::max(last, 0)));
}

bool PackageInfoModel::moveBrioRequirement(int from, int to) {
    return move(this, m_data->edit(), m_data->brioRequirements, from, to);
}

} // namespace Zel
