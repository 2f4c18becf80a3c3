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

/// Two packages with a validator each, and an undo stack. Every notification may edit, load or
/// delete any of them, as the input decides.
namespace Observers {

using namespace Zel;

/// The actions allowed to observers during a step. Each level includes the previous ones.
enum class Freedom {
    Read,  ///< without changes of content: saving, copying, synchronizing the record
    Reset, ///< loading and clearing
    Edit,
};

class World;

/// The arguments of a call, as the meta-object system passes them.
class CallArguments {
public:
    CallArguments();

    /// Adds a copy of `value` that lives as long as the arguments.
    template<typename Value>
    void own(Value value) {
        auto owned = std::make_shared<Value>(std::move(value));
        borrow(owned.get());
        m_owned.push_back(std::move(owned));
    }
    /// Adds a value owned elsewhere.
    void borrow(const void *value) { m_pointers.push_back(const_cast<void *>(value)); }

    void **pointers() { return m_pointers.data(); }

private:
    std::shared_ptr<void> m_result; // large enough for the result of any slot
    std::vector<void *> m_pointers;
    std::vector<std::shared_ptr<void>> m_owned;
};

/// A parameter type: how to choose a value, and how to read every byte of one.
struct ValueKind {
    const char *type;
    /// `method` shows the purpose of the value.
    void (*choose)(World &world, const QMetaMethod &method, CallArguments &arguments);
    void (*use)(const void *value);
    QString (*text)(const void *value);
};

/// The kind for a normalized type name. Fails if the type is unknown.
const ValueKind &valueKind(const QByteArray &type);

/// An operation on the models that is not a slot.
struct Action {
    const char *name;
    Freedom freedom;
    unsigned weight;
    void (*run)(World &world);
};

const std::vector<Action> &actions();

class World {
public:
    /// Observers react to notifications that they cause themselves up to this depth; 0 disables
    /// them.
    World(const std::uint8_t *data, std::size_t size, int greatestDepth = 4);
    ~World();
    World(const World &) = delete;
    World &operator=(const World &) = delete;

    /// Runs steps until the input is used up, and checks everything after each.
    void run();

    Decisions decisions;

    /// A living object of a type, or null.
    template<typename Object>
    Object *any() {
        std::vector<Object *> living;
        for (const auto &candidate : m_objects) {
            if (auto *object = qobject_cast<Object *>(candidate.data()))
                living.push_back(object);
        }
        return living.empty() ? nullptr : living.at(decisions.below(living.size()));
    }

    /// Connects to all signals of the object.
    template<typename Object>
    Object *watch(Object *object) {
        watchObject(object);
        return object;
    }

    /// Calls a slot with chosen arguments.
    void callSlot(QObject *object, const QMetaMethod &slot);
    void callAnySlot(QObject *object);

    /// The address of a child, which may be dangling.
    const void *anyAddress();

    /// Whether a package may be deleted: not during the deletion of a child, which Qt would delete
    /// twice.
    bool canDeletePackage() const { return m_dying == 0; }

    /// Runs a load, an assignment or a reset, which may leave descriptions in caches.
    void reset(const std::function<void()> &call);
    /// Runs an operation that the undo stack must finish before the next push or undo.
    void onStack(const std::function<void(QUndoStack &)> &call);

    /// Allows the packages' records to wait for syncRecord().
    void expectLag() { m_isLagging = true; }

    /// Expects the package's record to be this one after a step in which observers only read, or
    /// that of another load if observers load as well. Has no effect on other steps.
    void expectRecord(PackageInfoModel *package, const Tano::PackageInfo &record);

    /// The current notification's argument of a type, or null.
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
    int m_dying = 0; // the number of objects being destroyed
    bool m_isOnStack = false;
    bool m_isLagging = false;
    bool m_isEnding = false;
    std::set<std::pair<QString, QString>> m_leftovers; // stale descriptions
    std::vector<std::pair<QPointer<PackageInfoModel>, Tano::PackageInfo>> m_expected;
    Heard m_heard; // valid while m_depth is not 0
    QHash<const void *, QString> m_names;
    const bool m_isTraced;
};

/// How the package's caches, record and children disagree; empty if they agree. Descriptions
/// accepted by `isLeftover` may be in the cache only.
QString
disagreement(const PackageInfoModel &package,
             const std::function<bool(const QString &code, const QString &text)> &isLeftover);
/// How the record's lists differ from the children; empty if they agree.
QString lag(const PackageInfoModel &package);
/// How a save changes the record; empty if it does not, or if the record cannot be saved.
QString savingFault(const Tano::PackageInfo &record);

/// Manifests to load, some of which are invalid.
const std::vector<QByteArray> &manifests();
/// The record that loading manifests().at(i) gives without observers; empty if it is invalid.
Tano::PackageInfo loadedRecord(std::size_t i);

} // namespace Observers
