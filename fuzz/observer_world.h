#pragma once

#include "decisions.h"

#include <packagemodel/package_info_model.h>
#include <packagemodel/package_info_validator.h>

#include <QHash>
#include <QMetaMethod>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QUndoStack>

#include <array>
#include <deque>
#include <functional>
#include <memory>
#include <set>
#include <vector>

/// Two packages, a validator for each and one undo stack, whose every notification may edit, load
/// or delete any of them. An input decides everything that happens.
namespace Observers {

using namespace Zel;

/// What observers may do during a step. Each includes those before it.
enum class Freedom {
    Read,  ///< what changes no content: saving, copying, bringing the record up to date
    Reset, ///< loading and clearing
    Edit,
};

class World;

/// The arguments of one call, as the meta-object system passes them.
class CallArguments {
public:
    CallArguments();

    /// Adds a copy of `value`, which lives as long as the arguments.
    template<typename Value>
    void own(Value value) {
        auto owned = std::make_shared<Value>(std::move(value));
        borrow(owned.get());
        m_owned.push_back(std::move(owned));
    }
    /// Adds a value that lies elsewhere.
    void borrow(const void *value) { m_pointers.push_back(const_cast<void *>(value)); }

    void **pointers() { return m_pointers.data(); }

private:
    std::shared_ptr<void> m_result; // large enough for what any slot returns
    std::vector<void *> m_pointers;
    std::vector<std::shared_ptr<void>> m_owned;
};

/// A type of parameter: how to choose a value for it, and how to use every byte of one.
struct ValueKind {
    const char *type;
    /// `method` says what the value is for.
    void (*choose)(World &world, const QMetaMethod &method, CallArguments &arguments);
    void (*use)(const void *value);
    QString (*text)(const void *value);
};

/// The kind of a type by its normalized name. A type without one is a promise that does not hold.
const ValueKind &valueKind(const QByteArray &type);

/// Something that a program does with the models which is no slot.
struct Action {
    const char *name;
    Freedom freedom;
    unsigned weight;
    void (*run)(World &world);
};

const std::vector<Action> &actions();

class World {
public:
    /// Observers react to the notifications that they cause up to a depth; 0 is not at all.
    World(const std::uint8_t *data, std::size_t size, int greatestDepth = 4);
    ~World();
    World(const World &) = delete;
    World &operator=(const World &) = delete;

    /// Does steps until the input is used up, and checks everything after each.
    void run();

    Decisions decisions;

    /// A living object of a type; null when there is none.
    template<typename Object>
    Object *any() {
        std::vector<Object *> living;
        for (const auto &candidate : m_objects) {
            if (auto *object = qobject_cast<Object *>(candidate.data()))
                living.push_back(object);
        }
        return living.empty() ? nullptr : living.at(decisions.below(living.size()));
    }

    /// Connects to everything that the object announces.
    template<typename Object>
    Object *watch(Object *object) {
        watchObject(object);
        return object;
    }

    /// Calls a slot with chosen arguments.
    void callSlot(QObject *object, const QMetaMethod &slot);
    void callAnySlot(QObject *object);

    /// The address of a child, living or not, as a dangling pointer is one.
    const void *anyAddress();

    /// Whether a package may be deleted: not while a child is, which Qt would then delete twice.
    bool canDeletePackage() const { return m_dying == 0; }

    /// Runs a load, an assignment or a clearing, which may leave descriptions behind.
    void reset(const std::function<void()> &call);
    /// Runs what the undo stack must finish before anything else is pushed or undone.
    void onStack(const std::function<void(QUndoStack &)> &call);

    /// The records of packages may wait for syncRecord() from now on.
    void expectLag() { m_isLagging = true; }

    bool isLagging() const { return m_isLagging; }

    /// Says that the package's record is this one after a step in which observers only read, or
    /// that of another load where observers load as well. Does nothing for other steps.
    void expectRecord(PackageInfoModel *package, const Tano::PackageInfo &record);

    /// The argument of a type of the notification that is being heard; null for none.
    const void *heard(const QByteArray &type) const;

    void trace(const QString &line);
    QString nameOf(const void *object) const;

    std::array<QPointer<PackageInfoModel>, 2> packages;
    std::array<QPointer<PackageInfoValidator>, 2> validators;

private:
    friend class Observer;

    struct Heard {
        QMetaMethod signal;
        void **arguments = nullptr;
    };

    void step();
    void populate();
    void act(Freedom freedom);
    void hear(QObject *sender, const QMetaMethod &signal, void **arguments);
    static void use(const QMetaMethod &signal, void **arguments);
    void watchObject(QObject *object);
    void watchChildren();
    void noteDescriptions();

    void check();
    void checkExpected();
    void requireNone(const QString &fault, const PackageInfoModel &package);

    std::vector<QPointer<QObject>> m_objects;
    std::set<const void *> m_watched;
    std::deque<const void *> m_addresses;
    std::vector<std::unique_ptr<QObject>> m_observers;
    QUndoStack m_stack;
    Freedom m_freedom = Freedom::Edit;
    int m_depth = 0;
    const int m_greatestDepth;
    int m_budget;
    int m_resets = 0;
    int m_dying = 0; // how many objects are being destroyed
    bool m_isOnStack = false;
    bool m_isLagging = false;
    bool m_isEnding = false;
    std::set<std::pair<QString, QString>> m_leftovers; // descriptions that a reset may leave behind
    std::vector<std::pair<QPointer<PackageInfoModel>, Tano::PackageInfo>> m_expected;
    Heard m_heard; // while m_depth is not 0
    QHash<const void *, QString> m_names;
    const bool m_isTraced;
};

/// Why the package's caches, record and children disagree; empty when they agree. Descriptions
/// that `isLeftover` knows may lie in the cache alone.
QString
disagreement(const PackageInfoModel &package,
             const std::function<bool(const QString &code, const QString &text)> &isLeftover);
/// Why the record's lists are not those of the children; empty when they are.
QString lag(const PackageInfoModel &package);
/// Why the record does not survive a save; empty when it does, or cannot be saved.
QString savingFault(const Tano::PackageInfo &record);

/// The contents of manifests to load, some of which are refused.
const std::vector<QByteArray> &manifests();
/// The record that loading manifests().at(i) gives when nobody observes; empty where it is refused.
Tano::PackageInfo loadedRecord(std::size_t i);

} // namespace Observers
