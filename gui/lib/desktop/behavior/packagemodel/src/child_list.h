#pragma once

#include <packagemodel/package_info_model.h>

#include <QPointer>

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace Zel {

/// One kind of children: the operations on their list in the package's record, their lookup key,
/// the package's notifications, and the child's notifications after which the record is
/// synchronized. `changes` are emitted by the child itself, `foreign` ones only by others.
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
    static constexpr auto move = &Tano::PackageInfo::moveBehavior;
    static constexpr auto key = &Tano::BehaviorInfo::path;
    static constexpr auto added = &PackageInfoModel::behaviorAdded;
    static constexpr auto removed = &PackageInfoModel::behaviorRemoved;
    static constexpr auto moved = &PackageInfoModel::behaviorMoved;
    // Insertions are omitted deliberately: they wait for the next change.
    static constexpr auto changes = std::make_tuple(
        &BehaviorInfoModel::behaviorDescriptionUpdated, &BehaviorInfoModel::behaviorNameUpdated,
        &BehaviorInfoModel::conditionAdded, &BehaviorInfoModel::conditionRemoved,
        &BehaviorInfoModel::conditionUpdated, &BehaviorInfoModel::loadingResponseAdded,
        &BehaviorInfoModel::loadingResponseRemoved, &BehaviorInfoModel::loadingResponseUpdated,
        &BehaviorInfoModel::natureUpdated, &BehaviorInfoModel::pathUpdated,
        &BehaviorInfoModel::permissionAdded, &BehaviorInfoModel::permissionRemoved,
        &BehaviorInfoModel::tagAdded, &BehaviorInfoModel::tagRemoved,
        &BehaviorInfoModel::tagUpdated, &BehaviorInfoModel::triggerSentenceAdded,
        &BehaviorInfoModel::triggerSentenceRemoved, &BehaviorInfoModel::triggerSentenceUpdated,
        &BehaviorInfoModel::userRequestableChanged);
    static constexpr auto foreign =
        std::make_tuple(&BehaviorInfoModel::categoryAdded, &BehaviorInfoModel::categoryRemoved,
                        &BehaviorInfoModel::categoryUpdated);
};

template<>
struct ChildKind<DialogInfoModel> {
    using Record = Tano::DialogInfo;
    static constexpr auto records = &Tano::PackageInfo::dialogs;
    static constexpr auto clear = &Tano::PackageInfo::clearDialogs;
    static constexpr auto append = &Tano::PackageInfo::addDialog;
    static constexpr auto replace = &Tano::PackageInfo::replaceDialog;
    static constexpr auto remove = &Tano::PackageInfo::removeDialog;
    static constexpr auto move = &Tano::PackageInfo::moveDialog;
    static constexpr auto key = &Tano::DialogInfo::topicName;
    static constexpr auto added = &PackageInfoModel::dialogAdded;
    static constexpr auto removed = &PackageInfoModel::dialogRemoved;
    static constexpr auto moved = &PackageInfoModel::dialogMoved;
    static constexpr auto changes =
        std::make_tuple(&DialogInfoModel::nameChanged, &DialogInfoModel::topicChanged,
                        &DialogInfoModel::topicRemoved, &DialogInfoModel::typeVersionChanged);
    static constexpr auto foreign = std::make_tuple();
};

template<>
struct ChildKind<ServiceInfoModel> {
    using Record = Tano::PackageService;
    static constexpr auto records = &Tano::PackageInfo::services;
    static constexpr auto clear = &Tano::PackageInfo::clearServices;
    static constexpr auto append = &Tano::PackageInfo::addService;
    static constexpr auto replace = &Tano::PackageInfo::replaceService;
    static constexpr auto remove = &Tano::PackageInfo::removeService;
    static constexpr auto move = &Tano::PackageInfo::moveService;
    static constexpr auto key = &Tano::PackageService::name;
    static constexpr auto added = &PackageInfoModel::serviceAdded;
    static constexpr auto removed = &PackageInfoModel::serviceRemoved;
    static constexpr auto moved = &PackageInfoModel::serviceMoved;
    static constexpr auto changes = std::make_tuple(
        &ServiceInfoModel::nameChanged, &ServiceInfoModel::execStartChanged,
        &ServiceInfoModel::autoRunChanged, &ServiceInfoModel::servicePropertyChanged);
    static constexpr auto foreign = std::make_tuple();
};

/// For iterating while receivers of notifications may delete children.
template<typename Child>
std::vector<QPointer<Child>> guarded(const QVector<Child *> &children) {
    return {children.begin(), children.end()};
}

template<typename Child>
class ChildList;

/// Children by key, in list order among equal keys.
template<typename Child>
using ChildIndex = std::map<std::pair<std::string, std::uint64_t>, Child *>;

/// The data shared by all child models: the record, and the package's list that contains the child.
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

    /// The record, for changes except of its key. Marks the package's copy as stale, whether or not
    /// a notification follows.
    Record &edit() {
        m_revision = nextRevision();
        if (m_list && !m_stale) {
            m_stale = true;
            m_list->noteChange(m_child);
        }
        return m_record;
    }

    /// The record, for changes including its key.
    Record &editKey() {
        if (m_list && m_indexEntry)
            m_list->noteKeyChange(m_child);
        return edit();
    }

    /// Changes the record in place where detaching would be costly: the package's copy is dropped
    /// first and replaced afterwards. Only for changes that are announced immediately, when the
    /// package replaces its copy anyway.
    template<typename Change>
    void editAnnounced(Change change) {
        const bool isAnnounced = m_list && !m_child->signalsBlocked();
        const int index = isAnnounced ? m_list->mirroredIndexOf(*m_child) : -1;
        if (index >= 0)
            m_list->replaceRecord(index, Record());
        change(edit());
        if (index >= 0)
            m_list->replaceRecord(index, m_record);
    }

    /// Emits one of the child's `changes` after the package has followed it.
    template<typename... Parameters, typename... Arguments>
    void announce(void (Child::*signal)(Parameters...), const Arguments &...arguments) {
        if (m_list && m_isFollowedDirectly && !m_child->signalsBlocked())
            m_list->resync();
        Q_EMIT(m_child->*signal)(arguments...);
    }

    /// Of the record; no other record has or will have the same, even at the same address.
    std::uint64_t revision() const { return m_revision; }

    /// The list that contains the child; null if it has no package.
    ChildList<Child> *childList() const { return m_list; }

    /// Whether the child's removal is being announced; no package may add it meanwhile.
    bool isLeaving() const { return m_leaving; }

private:
    friend class ChildList<Child>;

    void leave() {
        m_list = nullptr;
        m_indexEntry.reset();
        m_stale = false;
    }

    static std::uint64_t nextRevision() {
        static std::atomic<std::uint64_t> last{0};
        return ++last;
    }

    Child *m_child;
    Record m_record;
    std::uint64_t m_revision = nextRevision();
    ChildList<Child> *m_list = nullptr;
    std::uint64_t m_label = 0; // ascending along the list, with gaps
    std::optional<typename ChildIndex<Child>::iterator> m_indexEntry;
    bool m_stale = false; // queued for the next resync
    bool m_leaving = false;
    bool m_isFollowedDirectly = false;
};

/// Gives the lists access to the models' data.
class ChildAccess {
public:
    template<typename Child>
    static auto &data(const Child &child) {
        return *child.m_data;
    }
};

/// The ordered children of one kind, mirrored by a list in the record.
///
/// resync() has the effect of clearing the record's list and appending every child's record in
/// order, but touches only the entries that differ, since the package calls it for every change.
template<typename Child>
class ChildList {
public:
    using Kind = ChildKind<Child>;
    using Record = typename Kind::Record;
    using ResyncSlot = void (PackageInfoModel::*)();

    ChildList(PackageInfoModel *package, Tano::PackageInfo &record, ResyncSlot resyncSlot)
        : m_package(package)
        , m_record(record)
        , m_resyncSlot(resyncSlot) {}
    ~ChildList() { close(); }
    ChildList(const ChildList &) = delete;
    ChildList &operator=(const ChildList &) = delete;

    PackageInfoModel *package() const { return m_package; }
    const QVector<Child *> &children() const { return m_children; }
    bool contains(const Child &child) const { return ChildAccess::data(child).childList() == this; }

    void reserve(int count) { m_children.reserve(count); }

    /// How the package follows the changes of a child. It is notified as a receiver that connects
    /// when the child is appended. A new child has no earlier receivers, so that it can call the
    /// package directly instead, which saves two thirds of the time and memory of a model.
    enum class Following { Directly, ByConnections };

    /// Appends a child that is in no list and follows its changes.
    void append(Child *child, Following following) {
        auto &data = ChildAccess::data(*child);
        data.m_list = this;
        data.m_isFollowedDirectly = following == Following::Directly;
        data.m_label = m_children.isEmpty() ? labelGap : labelOf(*m_children.back()) + labelGap;
        m_children.append(child);
        if (m_isIndexed)
            addToIndex(child);
        forEachConnection(
            data, [&](auto signal) { QObject::connect(child, signal, m_package, m_resyncSlot); });
    }

    /// Moves a child so that its new index is `to`, also in the record.
    void move(int from, int to) {
        Child *child = m_children.at(from);
        auto &data = ChildAccess::data(*child);
        m_children.move(from, to);
        dropFromIndex(data);
        setLabelAt(to);
        if (m_isIndexed)
            addToIndex(child);
        if (from >= m_mirrored || to >= m_mirrored || !(m_record.*Kind::move)(from, to)) {
            setOutOfStep();
            resync();
        }
    }

    /// Marks the child as being removed. Returns false if it already is, or is not in this list.
    bool startLeaving(const Child &child) {
        return contains(child) && !std::exchange(ChildAccess::data(child).m_leaving, true);
    }

    /// Allows a removed child to join another list.
    static void endLeaving(const Child &child) { ChildAccess::data(child).m_leaving = false; }

    /// Removes a child from the list, stops following it and updates the record, without
    /// notification.
    Child *takeAt(int index) {
        Child *child = m_children.at(index);
        stopFollowing(child);
        remove(index, ChildAccess::data(*child));
        resync();
        ChildAccess::data(*child).m_list = nullptr;
        return child;
    }

    /// Stops following a child that leaves without being deleted. Keeps the application's
    /// connections.
    void stopFollowing(Child *child) {
        forEachConnection(ChildAccess::data(*child), [&](auto signal) {
            QObject::disconnect(child, signal, m_package, m_resyncSlot);
        });
    }

    /// Empties the list permanently; the record is not changed.
    QVector<Child *> close() {
        for (Child *child : std::as_const(m_children)) {
            stopFollowing(child);
            ChildAccess::data(*child).leave();
        }
        m_isClosed = true;
        m_stale.clear();
        m_unindexed.clear();
        m_index.clear();
        setOutOfStep();
        return std::exchange(m_children, {});
    }
    /// Whether the package is being destroyed and accepts no more children.
    bool isClosed() const { return m_isClosed; }

    /// The index of a child, compared by address, so that the pointer may dangle; the number of
    /// children if it is not in the list.
    int indexOf(const Child *child) const {
        const auto found = std::find(m_children.cbegin(), m_children.cend(), child);
        return static_cast<int>(found - m_children.cbegin());
    }

    /// The first child whose key is `key`, or starts with it and a NUL; null if there is none.
    Child *find(const std::string &key) {
        if (!m_isIndexed) {
            m_isIndexed = true;
            m_unindexed.clear();
            for (Child *child : std::as_const(m_children))
                addToIndex(child);
        }
        const auto entry = m_index.lower_bound({key, 0});
        Child *found =
            entry != m_index.end() && entry->first.first == key ? entry->second : nullptr;
        for (Child *child : m_unindexed) {
            const bool isFirst = !found || labelOf(*child) < labelOf(*found);
            if (isFirst && key == foundKeyOf(*child))
                found = child;
        }
        return found;
    }

    /// All children with a key, in list order.
    std::vector<Child *> findAll(const std::string &key) {
        std::vector<Child *> found;
        if (!find(key))
            return found;
        const auto end = m_index.upper_bound({key, std::numeric_limits<std::uint64_t>::max()});
        for (auto entry = m_index.lower_bound({key, 0}); entry != end; ++entry)
            found.push_back(entry->second);
        for (Child *child : m_unindexed) {
            if (key == foundKeyOf(*child))
                found.push_back(child);
        }
        std::sort(found.begin(), found.end(),
                  [](const Child *a, const Child *b) { return labelOf(*a) < labelOf(*b); });
        return found;
    }

    /// The index of a child of this list.
    int placeOf(const Child &child) const {
        const auto isBefore = [](const Child *a, std::uint64_t label) {
            return labelOf(*a) < label;
        };
        const auto found =
            std::lower_bound(m_children.cbegin(), m_children.cend(), labelOf(child), isBefore);
        return static_cast<int>(found - m_children.cbegin());
    }

    static const std::string &keyOf(const Child &child) {
        return std::invoke(Kind::key, ChildAccess::data(child).record());
    }

    /// The part of the key that lookups compare: up to its first NUL.
    static std::string foundKeyOf(const Child &child) {
        const std::string &key = keyOf(child);
        return key.substr(0, key.find('\0'));
    }

    /// Drops a child that is being deleted; only its data is still valid.
    void forget(ChildData<Child> &data) { remove(indexOf(data.m_child), data); }

    void noteChange(Child *child) { m_stale.push_back(child); }

    void noteKeyChange(Child *child) {
        m_unindexed.push_back(child);
        dropFromIndex(ChildAccess::data(*child));
    }

    /// The index of a child's record in the record's list, -1 if it is not there.
    int mirroredIndexOf(const Child &child) const {
        const int index = m_mirrored > 0 ? placeOf(child) : 0;
        return index < m_mirrored ? index : -1;
    }
    void replaceRecord(int index, const Record &record) {
        (m_record.*Kind::replace)(index, record);
    }

    /// Marks the record's list as no longer mirroring the children.
    void setOutOfStep() { m_mirrored = outOfStep; }

    /// Whether the record's list equals the records of the children.
    bool isMirrored() const {
        const auto &records = (m_record.*Kind::records)();
        return std::equal(records.begin(), records.end(), m_children.begin(), m_children.end(),
                          &isRecordOf);
    }

    /// After the record was replaced: makes its list mirror the children.
    void settle() {
        m_mirrored = isMirrored() ? static_cast<int>(m_children.size()) : outOfStep;
        resync();
    }

    /// The same after an assignment: a list that lagged behind the children in the source package
    /// also lags behind the copies, unless observers have changed them.
    void settle(const std::vector<Record> &copied) {
        const bool areCopies = std::equal(copied.begin(), copied.end(), m_children.begin(),
                                          m_children.end(), &isRecordOf);
        if (areCopies && !isMirrored())
            setOutOfStep();
        else
            settle();
    }

    void resync() {
        if (m_mirrored == outOfStep) {
            (m_record.*Kind::clear)();
            m_mirrored = 0;
        }
        for (Child *child : std::exchange(m_unindexed, {}))
            addToIndex(child);
        for (Child *child : std::exchange(m_stale, {})) {
            auto &data = ChildAccess::data(*child);
            data.m_stale = false;
            if (const int index = m_mirrored > 0 ? placeOf(*child) : 0; index < m_mirrored)
                (m_record.*Kind::replace)(index, data.record());
        }
        for (; m_mirrored < m_children.size(); ++m_mirrored)
            (m_record.*Kind::append)(ChildAccess::data(*m_children.at(m_mirrored)).record());
    }

private:
    static constexpr int outOfStep = -1;
    static constexpr std::uint64_t labelGap = std::uint64_t(1) << 32;

    static std::uint64_t labelOf(const Child &child) { return ChildAccess::data(child).m_label; }
    static bool isRecordOf(const Record &record, const Child *child) {
        return record == ChildAccess::data(*child).record();
    }

    // Calls `visit` with each signal by which the package is connected to a child.
    template<typename Visit>
    static void forEachConnection(const ChildData<Child> &data, Visit visit) {
        const auto visitAll = [&](auto... signals) { (visit(signals), ...); };
        std::apply(visitAll, Kind::foreign);
        if (!data.m_isFollowedDirectly)
            std::apply(visitAll, Kind::changes);
    }

    // Labels the child at an index between its neighbors' labels; relabels all if there is no gap.
    void setLabelAt(int index) {
        const std::uint64_t before = index == 0 ? 0 : labelOf(*m_children.at(index - 1));
        const bool isLast = index + 1 == m_children.size();
        const std::uint64_t after =
            isLast ? before + 2 * labelGap : labelOf(*m_children.at(index + 1));
        ChildAccess::data(*m_children.at(index)).m_label = before + (after - before) / 2;
        if (after - before < 2)
            relabel();
    }

    void relabel() {
        m_isIndexed = false;
        m_index.clear();
        std::uint64_t label = 0;
        for (Child *child : std::as_const(m_children)) {
            auto &data = ChildAccess::data(*child);
            data.m_label = label += labelGap;
            data.m_indexEntry.reset();
        }
    }

    void remove(int index, ChildData<Child> &data) {
        m_children.remove(index);
        dropFromIndex(data);
        const auto drop = [&](std::vector<Child *> &children) {
            children.erase(std::remove(children.begin(), children.end(), data.m_child),
                           children.end());
        };
        drop(m_stale);
        drop(m_unindexed);
        data.m_stale = false;
        if (index < m_mirrored) {
            (m_record.*Kind::remove)(index);
            --m_mirrored;
        }
    }

    void addToIndex(Child *child) {
        auto &data = ChildAccess::data(*child);
        data.m_indexEntry =
            m_index.emplace(std::make_pair(foundKeyOf(*child), data.m_label), child).first;
    }

    void dropFromIndex(ChildData<Child> &data) {
        if (data.m_indexEntry)
            m_index.erase(*data.m_indexEntry);
        data.m_indexEntry.reset();
    }

    PackageInfoModel *m_package;
    Tano::PackageInfo &m_record;
    ResyncSlot m_resyncSlot;
    QVector<Child *> m_children;
    std::vector<Child *> m_stale;     // changed since the last resync
    std::vector<Child *> m_unindexed; // with a key that changed since the last resync
    ChildIndex<Child> m_index;        // the other children; built by the first lookup
    bool m_isIndexed = false;
    bool m_isClosed = false;
    int m_mirrored = outOfStep; // the length of the prefix that the record's list mirrors
};

} // namespace Zel
