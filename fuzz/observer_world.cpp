#include "observer_world.h"

#include "target.h"

#include <QTextStream>

#include <algorithm>

namespace Observers {

/// Receives every signal of one object, whatever its signature.
class Observer : public QObject {
public:
    Observer(World &world, QObject *target)
        : m_world(world)
        , m_target(target) {
        const QMetaObject &meta = *target->metaObject();
        for (int i = 0; i < meta.methodCount(); ++i) {
            const QMetaMethod method = meta.method(i);
            if (method.methodType() != QMetaMethod::Signal ||
                (method.attributes() & QMetaMethod::Cloned))
                continue;
            QMetaObject::connect(target, i, this,
                                 staticMetaObject.methodCount() + int(m_signals.size()),
                                 Qt::DirectConnection);
            m_signals.push_back(method);
        }
    }

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override {
        id = QObject::qt_metacall(call, id, arguments);
        if (id < 0 || call != QMetaObject::InvokeMetaMethod)
            return id;
        m_world.hear(m_target, m_signals.at(std::size_t(id)), arguments);
        return -1;
    }

private:
    World &m_world;
    QObject *m_target; // not used after its deletion
    std::vector<QMetaMethod> m_signals;
};

namespace {

constexpr int greatestBudget = 300;
constexpr std::size_t keptAddresses = 16;

const std::vector<QMetaMethod> &slotsOf(const QMetaObject &meta) {
    static std::map<const QMetaObject *, std::vector<QMetaMethod>> known;
    auto [entry, isNew] = known.try_emplace(&meta);
    for (int i = meta.methodOffset(); isNew && i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        if (method.methodType() == QMetaMethod::Slot && method.access() == QMetaMethod::Public)
            entry->second.push_back(method);
    }
    return entry->second;
}

const Action &choose(Decisions &decisions, Freedom freedom) {
    static const auto allowed = [](Freedom upTo) {
        std::vector<const Action *> chances;
        for (const Action &action : actions()) {
            if (action.freedom <= upTo)
                chances.insert(chances.end(), action.weight, &action);
        }
        return chances;
    };
    static const std::array chances{allowed(Freedom::Read), allowed(Freedom::Reset),
                                    allowed(Freedom::Edit)};
    const auto &candidates = chances.at(std::size_t(freedom));
    return *candidates.at(decisions.below(candidates.size()));
}

bool isOneOf(const Tano::PackageInfo &record, const std::vector<Tano::PackageInfo> &records) {
    return std::any_of(records.begin(), records.end(), [&](Tano::PackageInfo candidate) {
        const bool isEqual = candidate == record;
        candidate.trimExtraInfo();
        return isEqual || candidate == record;
    });
}

} // namespace

World::World(const std::uint8_t *data, std::size_t size, int greatestDepth)
    : decisions(data, size)
    , m_greatestDepth(greatestDepth)
    , m_budget(greatestBudget)
    , m_isTraced(qEnvironmentVariableIsSet("OBSERVERS_TRACE")) {
}

World::~World() {
    m_isEnding = true;
    for (const auto &object : m_objects) {
        if (object && !object->parent())
            delete object.data();
    }
}

void World::run() {
    populate();
    while (!decisions.isAtEnd() && m_budget > 0)
        step();
}

void World::populate() {
    m_objects.erase(std::remove(m_objects.begin(), m_objects.end(), nullptr), m_objects.end());
    for (auto &package : packages) {
        if (!package)
            package =
                watch(new PackageInfoModel(loadedRecord(decisions.below(manifests().size()))));
    }
    for (std::size_t i = 0; i < validators.size(); ++i) {
        if (validators.at(i) || !decisions.below(2))
            continue;
        validators.at(i) = watch(new PackageInfoValidator(packages.at(i)));
        validators.at(i)->activate();
    }
    watchChildren();
}

void World::step() {
    constexpr std::array freedoms{Freedom::Edit, Freedom::Read, Freedom::Reset,
                                  Freedom::Edit, Freedom::Edit, Freedom::Edit};
    m_freedom = freedoms.at(decisions.below(freedoms.size()));
    act(Freedom::Edit);
    check();
    populate();
}

void World::act(Freedom freedom) {
    --m_budget;
    const Action &action = choose(decisions, freedom);
    trace(QString::fromLatin1(action.name));
    action.run(*this);
    watchChildren();
}

void World::callAnySlot(QObject *object) {
    if (!object)
        return;
    const auto &candidates = slotsOf(*object->metaObject());
    callSlot(object, candidates.at(decisions.below(candidates.size())));
}

void World::callSlot(QObject *object, const QMetaMethod &slot) {
    CallArguments arguments;
    const QList<QByteArray> types = slot.parameterTypes();
    for (const QByteArray &type : types)
        valueKind(type).choose(*this, slot, arguments);
    if (m_isTraced) {
        QStringList texts;
        for (int i = 0; i < types.size(); ++i)
            texts << valueKind(types.at(i)).text(arguments.pointers()[i + 1]);
        trace(QStringLiteral("%1->%2(%3)")
                  .arg(nameOf(object), QString::fromLatin1(slot.name()),
                       texts.join(QStringLiteral(", "))));
    }
    if (slot.name().startsWith("clear"))
        expectLag(); // the record keeps its lists of children
    QMetaObject::metacall(object, QMetaObject::InvokeMetaMethod, slot.methodIndex(),
                          arguments.pointers());
}

const void *World::anyAddress() {
    return m_addresses.empty() ? nullptr : m_addresses.at(decisions.below(m_addresses.size()));
}

void World::reset(const std::function<void()> &call) {
    noteDescriptions();
    expectLag();
    ++m_resets;
    call();
    --m_resets;
}

void World::onStack(const std::function<void(QUndoStack &)> &call) {
    if (m_isOnStack)
        return;
    m_isOnStack = true;
    call(m_stack);
    m_isOnStack = false;
}

void World::expectRecord(PackageInfoModel *package, const Tano::PackageInfo &record) {
    if (m_depth == 0 && m_freedom != Freedom::Edit)
        m_expected.emplace_back(package, record);
}

void World::watchObject(QObject *object) {
    if (!m_watched.insert(object).second)
        return;
    m_objects.emplace_back(object);
    m_addresses.push_back(object);
    if (m_addresses.size() > keptAddresses)
        m_addresses.pop_front();
    m_names[object] =
        QStringLiteral("%1#%2").arg(QString::fromLatin1(object->metaObject()->className()).mid(5),
                                    QString::number(m_names.size()));
    // The second observer sees the changes of the first.
    m_observers.push_back(std::make_unique<Observer>(*this, object));
    m_observers.push_back(std::make_unique<Observer>(*this, object));
}

void World::watchChildren() {
    for (const auto &package : packages) {
        if (!package)
            continue;
        for (QObject *child : package->behaviors())
            watchObject(child);
        for (QObject *child : package->dialogs())
            watchObject(child);
        for (QObject *child : package->services())
            watchObject(child);
    }
}

void World::noteDescriptions() {
    for (const auto &package : packages) {
        if (!package)
            continue;
        for (const auto &[text, language] : package->descriptions())
            m_leftovers.emplace(language.isoCode(), text);
    }
}

void World::hear(QObject *sender, const QMetaMethod &signal, void **arguments) {
    if (signal.name() == "destroyed")
        m_watched.erase(sender);
    m_isLagging = m_isLagging || signal.name().endsWith("Inserted");
    use(signal, arguments);
    if (m_resets > 0)
        noteDescriptions();
    watchChildren();
    if (m_isEnding || m_depth >= m_greatestDepth || m_budget <= 0 || !decisions.oneIn(3))
        return;

    if (m_isTraced)
        trace(QStringLiteral("on %1::%2:").arg(nameOf(sender), QString::fromLatin1(signal.name())));
    const bool isDying = signal.name() == "destroyed";
    const QPointer<QObject> guard(isDying ? nullptr : sender);
    m_dying += isDying ? 1 : 0;
    const auto outer = std::exchange(m_heard, Heard{signal, arguments});
    ++m_depth;
    act(m_freedom);
    --m_depth;
    m_heard = outer;
    m_dying -= isDying ? 1 : 0;
    if (guard)
        use(signal, arguments); // like the next receiver
}

void World::use(const QMetaMethod &signal, void **arguments) {
    const QList<QByteArray> types = signal.parameterTypes();
    for (int i = 0; i < types.size(); ++i)
        valueKind(types.at(i)).use(arguments[i + 1]);
}

const void *World::heard(const QByteArray &type) const {
    if (m_depth == 0)
        return nullptr;
    const auto index = m_heard.signal.parameterTypes().indexOf(type);
    return index < 0 ? nullptr : m_heard.arguments[index + 1];
}

void World::check() {
    checkExpected();
    for (const auto &package : packages) {
        if (package && !m_isLagging)
            requireNone(lag(*package), *package);
    }
    if (decisions.below(2)) {
        for (const auto &package : packages) {
            if (package)
                package->syncRecord();
        }
        m_isLagging = false;
    }
    std::set<std::pair<QString, QString>> left;
    const auto isLeftover = [&](const QString &code, const QString &text) {
        return m_leftovers.count({code, text}) > 0 && (left.emplace(code, text), true);
    };
    for (const auto &package : packages) {
        if (!package)
            continue;
        requireNone(disagreement(*package, isLeftover), *package);
        if (!m_isLagging)
            requireNone(lag(*package), *package);
    }
    m_leftovers = std::move(left);
}

void World::checkExpected() {
    for (const auto &[package, expected] : std::exchange(m_expected, {})) {
        if (!package)
            continue;
        std::vector<Tano::PackageInfo> records{expected};
        for (std::size_t i = 0; m_freedom == Freedom::Reset && i < manifests().size(); ++i)
            records.push_back(loadedRecord(i));
        require(isOneOf(package->packageInfo(), records),
                "a load gives what the manifest holds, whatever observers read, load or clear");
    }
}

void World::requireNone(const QString &fault, const PackageInfoModel &package) {
    require(fault.isEmpty(), QStringLiteral("%1: %2").arg(nameOf(&package), fault).toStdString());
}

void World::trace(const QString &line) {
    if (!m_isTraced)
        return;
    QTextStream(stderr) << QString(4 * m_depth, QLatin1Char(' ')) << line << '\n';
}

QString World::nameOf(const void *object) const {
    return m_names.value(object, QStringLiteral("null"));
}

} // namespace Observers
