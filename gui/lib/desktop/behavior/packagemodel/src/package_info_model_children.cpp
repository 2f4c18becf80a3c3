#include <packagemodel/package_info_model.h>

#include "copies.h"
#include "package_info_data.h"

#include <QPointer>

#include <algorithm>

namespace Zel {
namespace {

void adopt(PackageInfoModel *package, BehaviorInfoModel *behavior) {
    behavior->setParentPackage(package);
}

void adopt(PackageInfoModel *package, QObject *child) {
    child->setParent(package);
}

// Adds a child whose parent is already the package.
template<typename Child, typename Following = typename ChildList<Child>::Following>
void addOwn(PackageInfoModel *package, ChildList<Child> &list, Child *child,
            Following following = Following::Directly) {
    if (list.isClosed()) {
        delete child;
        return;
    }
    list.append(child, following);
    list.resync();
    Q_EMIT(package->*ChildKind<Child>::added)(child);
}

template<typename Child>
bool move(PackageInfoModel *package, ChildList<Child> &list, int from, int to) {
    const int size = static_cast<int>(list.children().size());
    if (from < 0 || from >= size || to < 0 || to >= size)
        return false;
    if (from == to)
        return true;
    list.move(from, to);
    Q_EMIT(package->*ChildKind<Child>::moved)(list.children().at(to), from, to);
    return true;
}

template<typename Child>
void insertOwn(PackageInfoModel *package, ChildList<Child> &list, Child *child, int index) {
    const QPointer<PackageInfoModel> living(package);
    const QPointer<Child> added(child);
    addOwn(package, list, child);
    if (!living || !added || !list.contains(*added))
        return;
    const int size = static_cast<int>(list.children().size());
    move(package, list, list.placeOf(*added), std::clamp(index, 0, size - 1));
}

// Releases a child from its package: updates the record and announces the removal. Returns false if
// an observer deleted the child or one of the packages.
template<typename Child>
bool release(const QPointer<Child> &child, const QPointer<PackageInfoModel> &newPackage) {
    ChildList<Child> *list = ChildAccess::data(*child).childList();
    if (!list)
        return true;
    PackageInfoModel *package = list->package();
    list->startLeaving(*child);
    list->takeAt(list->indexOf(child));
    Q_EMIT(package->*ChildKind<Child>::removed)(child.data());
    if (child)
        ChildList<Child>::endLeaving(*child);
    return child && newPackage;
}

template<typename Child>
void add(PackageInfoModel *package, ChildList<Child> &list, Child *child) {
    if (!child || list.isClosed() || list.contains(*child) || ChildAccess::data(*child).isLeaving())
        return;
    if (!release<Child>(child, package))
        return;
    adopt(package, child);
    addOwn(package, list, child, ChildList<Child>::Following::ByConnections);
}

// Announces the removal and deletes the child, unless receivers have deleted it.
template<typename Child>
void announceAndDelete(PackageInfoModel *package, const QPointer<Child> &child) {
    Q_EMIT(package->*ChildKind<Child>::removed)(child.data());
    delete child.data();
}

template<typename Child>
bool remove(PackageInfoModel *package, ChildList<Child> &list, int index) {
    if (index < 0 || index >= list.children().size() ||
        !list.startLeaving(*list.children().at(index)))
        return false;
    announceAndDelete(package, QPointer<Child>(list.takeAt(index)));
    return true;
}

template<typename Child>
bool remove(PackageInfoModel *package, ChildList<Child> &list, Child *child) {
    return remove(package, list, list.indexOf(child));
}

// Receivers may add, remove and clear children meanwhile, or delete the package; children that they
// add are kept.
template<typename Child>
void clear(PackageInfoModel *package, ChildList<Child> &list) {
    const QPointer<PackageInfoModel> living(package);
    list.setOutOfStep(); // leaves the record's list unchanged
    for (const QPointer<Child> &child : guarded(list.children())) {
        if (!living)
            return;
        if (child && list.startLeaving(*child))
            announceAndDelete(package, child);
    }
}

// Compares encoded keys, which avoids decoding every record but gives the same result.
template<typename Child>
Child *find(ChildList<Child> &list, const QString &key) {
    if (!key.isValidUtf16() || key.contains(QChar::Null))
        return nullptr; // no bytes decode to this
    if (!key.contains(QChar::ReplacementCharacter))
        return list.find(toUtf8(key));
    // Any malformed bytes decode to this.
    const auto &children = list.children();
    const auto found = std::find_if(children.begin(), children.end(), [&](const Child *child) {
        return fromUtf8(ChildList<Child>::keyOf(*child)) == key;
    });
    return found == children.end() ? nullptr : *found;
}

} // namespace

QVector<BehaviorInfoModel *> PackageInfoModel::behaviors() const {
    return m_data->behaviors.children();
}

QVector<DialogInfoModel *> PackageInfoModel::dialogs() const {
    return m_data->dialogs.children();
}

QVector<ServiceInfoModel *> PackageInfoModel::services() const {
    return m_data->services.children();
}

BehaviorInfoModel *PackageInfoModel::behavior(const QString &path) const {
    return find(m_data->behaviors, path);
}

DialogInfoModel *PackageInfoModel::dialog(const QString &name) const {
    return find(m_data->dialogs, name);
}

ServiceInfoModel *PackageInfoModel::service(const QString &name) const {
    return find(m_data->services, name);
}

void PackageInfoModel::createBehaviorInfoModels() {
    createBehaviors(m_data->record());
}

void PackageInfoModel::createBehaviors(const Tano::PackageInfo &record) {
    const Tano::PackageInfo original = copyOf(record); // receivers may change the argument
    const QPointer<PackageInfoModel> living(this);
    clearBehaviors();
    if (!living || m_data->behaviors.isClosed())
        return;
    ChildList<BehaviorInfoModel> &list = m_data->behaviors;
    list.reserve(static_cast<int>(original.behaviors().size()));
    for (const Tano::BehaviorInfo &info : original.behaviors())
        list.append(new BehaviorInfoModel(info, this, nullptr),
                    ChildList<BehaviorInfoModel>::Following::Directly);
    list.settle();
}

void PackageInfoModel::resyncBehaviors() {
    m_data->behaviors.resync();
}

void PackageInfoModel::resyncDialogs() {
    m_data->dialogs.resync();
}

void PackageInfoModel::resyncServices() {
    m_data->services.resync();
}

void PackageInfoModel::syncRecord() {
    resyncBehaviors();
    resyncDialogs();
    resyncServices();
}

bool PackageInfoModel::addBehavior(const QString &behaviorPath) {
    if (behavior(behaviorPath))
        return false;
    auto *behavior = new BehaviorInfoModel(Tano::BehaviorInfo(), this, nullptr);
    behavior->setPath(behaviorPath);
    addOwn(this, m_data->behaviors, behavior);
    return true;
}

void PackageInfoModel::addBehavior(const Tano::BehaviorInfo &bi) {
    addOwn(this, m_data->behaviors, new BehaviorInfoModel(bi, this, nullptr));
}

void PackageInfoModel::addBehavior(BehaviorInfoModel *bim) {
    add(this, m_data->behaviors, bim);
}

bool PackageInfoModel::removeBehavior(const QString &behaviorPath) {
    return removeBehavior(behavior(behaviorPath));
}

bool PackageInfoModel::removeBehavior(BehaviorInfoModel *bim) {
    return remove(this, m_data->behaviors, bim);
}

void PackageInfoModel::insertBehavior(int index, const Tano::BehaviorInfo &bi) {
    insertOwn(this, m_data->behaviors, new BehaviorInfoModel(bi, this, nullptr), index);
}

bool PackageInfoModel::moveBehavior(int from, int to) {
    return Zel::move(this, m_data->behaviors, from, to);
}

void PackageInfoModel::clearBehaviors() {
    Zel::clear(this, m_data->behaviors);
}

void PackageInfoModel::addDialog(const Tano::DialogInfo &di) {
    addOwn(this, m_data->dialogs, new DialogInfoModel(di, this));
}

void PackageInfoModel::addDialog(DialogInfoModel *dim) {
    add(this, m_data->dialogs, dim);
}

void PackageInfoModel::addDialog(const QString &topicName) {
    if (dialog(topicName))
        return;
    auto *dialog = new DialogInfoModel(Tano::DialogInfo(), this);
    dialog->setTopicName(topicName);
    addOwn(this, m_data->dialogs, dialog);
}

bool PackageInfoModel::removeDialog(int dialogIndex) {
    return remove(this, m_data->dialogs, dialogIndex);
}

bool PackageInfoModel::removeDialog(DialogInfoModel *dim) {
    return remove(this, m_data->dialogs, dim);
}

void PackageInfoModel::insertDialog(int index, const Tano::DialogInfo &di) {
    insertOwn(this, m_data->dialogs, new DialogInfoModel(di, this), index);
}

bool PackageInfoModel::moveDialog(int from, int to) {
    return Zel::move(this, m_data->dialogs, from, to);
}

void PackageInfoModel::addService(const Tano::PackageService &si) {
    addOwn(this, m_data->services, new ServiceInfoModel(si, this));
}

void PackageInfoModel::addService(ServiceInfoModel *sim) {
    add(this, m_data->services, sim);
}

// cppcheck-suppress passedByValue
// NOLINTNEXTLINE(performance-unnecessary-value-param): part of the interface
bool PackageInfoModel::removeService(QString serviceName) {
    return removeService(service(serviceName));
}

bool PackageInfoModel::removeService(ServiceInfoModel *sim) {
    return remove(this, m_data->services, sim);
}

void PackageInfoModel::insertService(int index, const Tano::PackageService &si) {
    insertOwn(this, m_data->services, new ServiceInfoModel(si, this), index);
}

bool PackageInfoModel::moveService(int from, int to) {
    return Zel::move(this, m_data->services, from, to);
}

void PackageInfoModel::clearServices() {
    Zel::clear(this, m_data->services);
}

} // namespace Zel
