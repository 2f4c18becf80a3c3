#pragma once

#include <packagemodel/package_info_model.h>

#include <QPointer>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace Zel {

/// One kind of children: the operations of the package's record on their list, what a child is
/// looked up by, the package's notifications, and the child's notifications upon which the record
/// is brought up to date.
template<typename Child>
struct ChildKind;

template<>
struct ChildKind<BehaviorInfoModel> {
    using Record = Tano::BehaviorInfo;
    static constexpr auto records = &Tano::PackageInfo::behaviors;
    static constexpr auto clear = &Tano::PackageInfo::clearBehaviors;
    static constexpr auto append = &Tano::PackageInfo::addBehavior;
    static constexpr auto replace = &Tano::PackageInfo::replaceBehavior;
    static constexpr auto remove = &Tano::PackageInfo::removeBehavior;
    static constexpr auto key = &Tano::BehaviorInfo::path;
    static constexpr auto added = &PackageInfoModel::behaviorAdded;
    static constexpr auto removed = &PackageInfoModel::behaviorRemoved;
    // The insertions are left out on purpose: they wait for the next change.
    static constexpr auto changes = std::make_tuple(
        &BehaviorInfoModel::behaviorDescriptionUpdated, &BehaviorInfoModel::behaviorNameUpdated,
        &BehaviorInfoModel::categoryAdded, &BehaviorInfoModel::categoryRemoved,
        &BehaviorInfoModel::categoryUpdated, &BehaviorInfoModel::conditionAdded,
        &BehaviorInfoModel::conditionRemoved, &BehaviorInfoModel::conditionUpdated,
        &BehaviorInfoModel::loadingResponseAdded, &BehaviorInfoModel::loadingResponseRemoved,
        &BehaviorInfoModel::loadingResponseUpdated, &BehaviorInfoModel::natureUpdated,
        &BehaviorInfoModel::pathUpdated, &BehaviorInfoModel::permissionAdded,
        &BehaviorInfoModel::permissionRemoved, &BehaviorInfoModel::tagAdded,
        &BehaviorInfoModel::tagRemoved, &BehaviorInfoModel::tagUpdated,
        &BehaviorInfoModel::triggerSentenceAdded, &BehaviorInfoModel::triggerSentenceRemoved,
        &BehaviorInfoModel::triggerSentenceUpdated, &BehaviorInfoModel::userRequestableChanged);
};

template<>
struct ChildKind<DialogInfoModel> {
    using Record = Tano::DialogInfo;
    static constexpr auto records = &Tano::PackageInfo::dialogs;
    static constexpr auto clear = &Tano::PackageInfo::clearDialogs;
    static constexpr auto append = &Tano::PackageInfo::addDialog;
    static constexpr auto replace = &Tano::PackageInfo::replaceDialog;
    static constexpr auto remove = &Tano::PackageInfo::removeDialog;
    static constexpr auto key = &Tano::DialogInfo::topicName;
    static constexpr auto added = &PackageInfoModel::dialogAdded;
    static constexpr auto removed = &PackageInfoModel::dialogRemoved;
    static constexpr auto changes =
        std::make_tuple(&DialogInfoModel::nameChanged, &DialogInfoModel::topicChanged,
                        &DialogInfoModel::topicRemoved, &DialogInfoModel::typeVersionChanged);
};

template<>
struct ChildKind<ServiceInfoModel> {
    using Record = Tano::PackageService;
    static constexpr auto records = &Tano::PackageInfo::services;
    static constexpr auto clear = &Tano::PackageInfo::clearServices;
    static constexpr auto append = &Tano::PackageInfo::addService;
    static constexpr auto replace = &Tano::PackageInfo::replaceService;
    static constexpr auto remove = &Tano::PackageInfo::removeService;
    static constexpr auto key = &Tano::PackageService::name;
    static constexpr auto added = &PackageInfoModel::serviceAdded;
    static constexpr auto removed = &PackageInfoModel::serviceRemoved;
    static constexpr auto changes =
        std::make_tuple(&ServiceInfoModel::nameChanged, &ServiceInfoModel::execStartChanged,
                        &ServiceInfoModel::autoRunChanged);
};

/// For going through children while receivers of notifications may delete some.
template<typename Child>
std::vector<QPointer<Child>> guarded(const QVector<Child *> &children) {
    return {children.begin(), children.end()};
}

template<typename Child>
class ChildList;

/// Children by the key that they are looked up by; of those with the same key, in their order.
template<typename Child>
using ChildIndex = std::map<std::pair<std::string, std::uint64_t>, Child *>;

/// What every child model holds: its record, and the list of the package that it stands in.
template<typename Child>
class ChildData {
public:
    using Record = typename ChildKind<Child>::Record;

    ChildData(Child *child, Record record)
        : m_child(child)
        , m_record(std::move(record)) {}
    ~ChildData() {
        if (m_list)
            m_list->forget(*this);
    }
    ChildData(const ChildData &) = delete;
    ChildData &operator=(const ChildData &) = delete;

    const Record &record() const { return m_record; }

    /// The record, to be changed. The package learns that its copy is out of date, whether or not a
    /// notification follows.
    Record &edit() {
        if (m_list && !m_stale) {
            m_stale = true;
            m_list->noteChange(m_child);
        }
        return m_record;
    }

    /// The list that the child stands in; null when it has no package.
    ChildList<Child> *childList() const { return m_list; }

private:
    friend class ChildList<Child>;

    Child *m_child;
    Record m_record;
    ChildList<Child> *m_list = nullptr;
    std::uint64_t m_serial = 0; // ascending along the list
    std::optional<typename ChildIndex<Child>::iterator> m_indexEntry;
    bool m_stale = false;   // listed for the next resync
    bool m_leaving = false; // announced as removed, though it may still stand in the list
};

/// Lets the lists reach into the child models.
class ChildAccess {
public:
    template<typename Child>
    static auto &data(const Child &child) {
        return *child.m_data;
    }
};

/// The ordered children of one kind, and the record's list that mirrors them.
///
/// resync() makes that list what clearing it and appending every child's record in order would, but
/// touches the entries that differ only: the package calls it for every single change.
template<typename Child>
class ChildList {
public:
    using Kind = ChildKind<Child>;
    using ResyncSlot = void (PackageInfoModel::*)();

    ChildList(PackageInfoModel *package, Tano::PackageInfo &record, ResyncSlot resyncSlot)
        : m_package(package)
        , m_record(record)
        , m_resyncSlot(resyncSlot) {}
    ~ChildList() {
        for (const Child *child : std::as_const(m_children))
            ChildAccess::data(*child).m_list = nullptr;
    }
    ChildList(const ChildList &) = delete;
    ChildList &operator=(const ChildList &) = delete;

    const QVector<Child *> &children() const { return m_children; }
    bool contains(const Child &child) const { return ChildAccess::data(child).childList() == this; }

    void reserve(int count) { m_children.reserve(count); }

    /// Appends a child that stands in no list, and tracks its changes.
    void append(Child *child) {
        auto &data = ChildAccess::data(*child);
        data.m_list = this;
        data.m_serial = m_nextSerial++;
        data.m_indexEntry.reset();
        data.m_stale = false;
        m_children.append(child);
        if (m_isIndexed)
            addToIndex(child);
        std::apply(
            [&](auto... changes) {
                (QObject::connect(child, changes, m_package, m_resyncSlot), ...);
            },
            Kind::changes);
    }

    /// Marks the child as one that is about to be announced as removed; returns false where it has
    /// been announced already, or stands in no list or another one.
    bool startLeaving(const Child &child) {
        return contains(child) && !std::exchange(ChildAccess::data(child).m_leaving, true);
    }

    /// Takes a child out of the list and brings the record up to date, without notification.
    Child *takeAt(int index) {
        Child *child = m_children.takeAt(index);
        dropTraces(ChildAccess::data(*child));
        if (index < m_mirrored) {
            (m_record.*Kind::remove)(index);
            --m_mirrored;
        }
        resync();
        ChildAccess::data(*child).m_list = nullptr;
        return child;
    }

    /// Lets a child go to another package.
    void release(Child *child) {
        takeAt(indexOf(child));
        QObject::disconnect(child, nullptr, m_package, nullptr);
    }

    /// The index of a child; the number of children when it is not there.
    int indexOf(const Child *child) const {
        if (!child || !contains(*child))
            return static_cast<int>(m_children.size());
        const auto isBefore = [](const Child *a, std::uint64_t serial) {
            return ChildAccess::data(*a).m_serial < serial;
        };
        const auto found = std::lower_bound(m_children.cbegin(), m_children.cend(),
                                            ChildAccess::data(*child).m_serial, isBefore);
        return static_cast<int>(found - m_children.cbegin());
    }

    /// The first child whose key is `key`, or begins with it and a NUL; null for none.
    Child *find(std::string key) {
        if (!m_isIndexed) {
            m_isIndexed = true;
            for (Child *child : std::as_const(m_children)) {
                if (!ChildAccess::data(*child).m_stale)
                    addToIndex(child);
            }
        }
        const auto entry = m_index.lower_bound({key, 0});
        Child *found =
            entry != m_index.end() && entry->first.first == key ? entry->second : nullptr;
        for (Child *child : m_stale) {
            const bool isFirst =
                !found || ChildAccess::data(*child).m_serial < ChildAccess::data(*found).m_serial;
            if (isFirst && key == foundKeyOf(*child))
                found = child;
        }
        return found;
    }

    static const std::string &keyOf(const Child &child) {
        return std::invoke(Kind::key, ChildAccess::data(child).record());
    }

    /// What a look-up compares: the key up to its first NUL.
    static std::string foundKeyOf(const Child &child) {
        const std::string &key = keyOf(child);
        return key.substr(0, key.find('\0'));
    }

    /// Drops a child that is being deleted, of which nothing but `data` is left. The record waits
    /// for the next resync.
    void forget(ChildData<Child> &data) {
        m_children.removeOne(data.m_child);
        dropTraces(data);
        setOutOfStep();
    }

    void noteChange(Child *child) {
        m_stale.push_back(child);
        dropFromIndex(ChildAccess::data(*child));
    }

    /// Says that the record's list no longer mirrors the children.
    void setOutOfStep() { m_mirrored = outOfStep; }
    /// Says that the record's list mirrors the children.
    void setInStep() { m_mirrored = static_cast<int>(m_children.size()); }

    void resync() {
        if (m_mirrored == outOfStep) {
            (m_record.*Kind::clear)();
            m_mirrored = 0;
        }
        for (Child *child : m_stale) {
            auto &data = ChildAccess::data(*child);
            data.m_stale = false;
            if (m_isIndexed)
                addToIndex(child);
            if (const int index = m_mirrored > 0 ? indexOf(child) : 0; index < m_mirrored)
                (m_record.*Kind::replace)(index, data.record());
        }
        m_stale.clear();
        for (; m_mirrored < m_children.size(); ++m_mirrored)
            (m_record.*Kind::append)(ChildAccess::data(*m_children.at(m_mirrored)).record());
    }

private:
    static constexpr int outOfStep = -1;

    void addToIndex(Child *child) {
        auto &data = ChildAccess::data(*child);
        data.m_indexEntry =
            m_index.emplace(std::make_pair(foundKeyOf(*child), data.m_serial), child).first;
    }

    void dropFromIndex(ChildData<Child> &data) {
        if (data.m_indexEntry)
            m_index.erase(*data.m_indexEntry);
        data.m_indexEntry.reset();
    }

    void dropTraces(ChildData<Child> &data) {
        dropFromIndex(data);
        m_stale.erase(std::remove(m_stale.begin(), m_stale.end(), data.m_child), m_stale.end());
    }

    PackageInfoModel *m_package;
    Tano::PackageInfo &m_record;
    ResyncSlot m_resyncSlot;
    QVector<Child *> m_children;
    std::vector<Child *> m_stale; // the children whose records changed since the last resync
    std::uint64_t m_nextSerial = 0;
    ChildIndex<Child> m_index; // of the children that are not stale, from the first look-up on
    bool m_isIndexed = false;
    int m_mirrored = outOfStep; // how many children, from the first on, the record's list mirrors
};

} // namespace Zel
