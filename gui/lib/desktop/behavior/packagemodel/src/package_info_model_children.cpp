#include <packagemodel/package_info_model.h>

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

// Adds a child that has the package for its parent already.
template<typename Child>
void addOwn(PackageInfoModel *package, ChildList<Child> &list, Child *child) {
    list.append(child);
    list.resync();
    Q_EMIT(package->*ChildKind<Child>::added)(child);
}

template<typename Child>
void add(PackageInfoModel *package, ChildList<Child> &list, Child *child) {
    if (!child || list.contains(*child))
        return;
    if (ChildList<Child> *other = ChildAccess::data(*child).childList())
        other->release(child);
    adopt(package, child);
    addOwn(package, list, child);
}

// Receivers may delete the child themselves.
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

// Receivers may add, remove and clear children meanwhile; what they add stays.
template<typename Child>
void clear(PackageInfoModel *package, ChildList<Child> &list) {
    for (const QPointer<Child> &child : guarded(list.children())) {
        if (child && list.startLeaving(*child))
            announceAndDelete(package, child);
    }
}

// Looks for bytes, which spares decoding every record; the answer is that of comparing the decoded
// texts.
template<typename Child>
Child *find(ChildList<Child> &list, const QString &key) {
    if (!key.isValidUtf16() || key.contains(QChar::Null))
        return nullptr; // nothing decodes to this
    if (!key.contains(QChar::ReplacementCharacter))
        return list.find(toUtf8(key));
    // Malformed bytes of any kind decode to this.
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
    clearBehaviors();
    ChildList<BehaviorInfoModel> &list = m_data->behaviors;
    const bool isEmpty = list.children().isEmpty(); // unless a receiver has added some
    list.reserve(static_cast<int>(m_data->record().behaviors().size()));
    for (const Tano::BehaviorInfo &info : m_data->record().behaviors())
        list.append(new BehaviorInfoModel(info, this, nullptr));
    if (isEmpty)
        list.setInStep();
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

void PackageInfoModel::clearServices() {
    Zel::clear(this, m_data->services);
}

} // namespace Zel
