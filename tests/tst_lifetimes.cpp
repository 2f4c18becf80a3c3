#include "../fuzz/observer_world.h"
#include "../fuzz/target.h"
#include "signal_log.h"
#include "text.h"
#include "warning_guard.h"

#include <packagemodel/behavior_commands.h>
#include <packagemodel/dialog_commands.h>
#include <packagemodel/package_info_validator.h>
#include <packagemodel/set_string.h>
#include <packagemodel/supported_languages_command.h>

#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>

#include <functional>
#include <memory>
#include <type_traits>

using namespace Zel;

static_assert(std::is_abstract_v<PackageCommand> && std::is_abstract_v<BehaviorCommand> &&
              std::is_abstract_v<DialogCommand>);

namespace {

Tano::PackageInfo fullRecord() {
    Tano::PackageInfo record;
    record.setVersion("1.2.3");
    record.addSupportedLanguage("en_US");
    record.addSupportedLanguage("fr_FR");
    record.setName("Tea", "en_US");
    record.setDescription("Hot", "en_US");
    record.addRobotRequirement({"robot", {}, {}, {}, {}});
    record.addBrioRequirement({"1.0", {}});
    for (const char *key : {"a", "b"}) {
        Tano::BehaviorInfo behavior;
        behavior.setPath(key);
        behavior.addTag("tag", "en_US");
        record.addBehavior(behavior);
        Tano::DialogInfo dialog;
        dialog.setTopicName(key);
        dialog.setTopic("en_US", "topic.top");
        record.addDialog(dialog);
        record.addService({key, "run", false, {}});
    }
    return record;
}

QString disagreement(const PackageInfoModel &package) {
    return Observers::disagreement(package, [](auto &&...) { return false; }) +
           Observers::lag(package);
}

// Calls `react` at every notification of an object.
struct Observer : SignalLog {
    Observer(QObject &object, const std::function<void()> &react)
        : SignalLog(object) {
        onEverySignal([react] {
            react();
            return QStringList();
        });
    }
};

using Edit = std::function<void(PackageInfoModel &)>;

} // namespace

void require(bool holds, const std::string &promise) {
    if (!holds)
        qFatal("%s", promise.c_str());
}

Q_DECLARE_METATYPE(Edit)

class TestLifetimes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_warnings.watch(); }
    void cleanup() { QCOMPARE(m_warnings.take(), QStringList()); }

    void packageGoesInAnyNotification_data();
    void packageGoesInAnyNotification();
    void childrenGoFirst();
    void toggledLanguage();
    void argumentsInTheModel_data();
    void argumentsInTheModel();
    void contentIsASlice();
    void validatorWithoutPackage();
    void removedChildrenStayRemoved();
    void commandsOfTwoPackages();
    void movingToAnotherPackage();
    void copiesOfAHalfLoadedPackage();
    void theLastLoadWins();
    void metaTypes();

private:
    WarningGuard m_warnings;
    const RobotLanguage m_english = language("en_US");
    const RobotLanguage m_french = language("fr_FR");
    const QByteArray m_manifest = PackageInfoModel(fullRecord()).saveToManifestContent();
};

void TestLifetimes::packageGoesInAnyNotification_data() {
    QTest::addColumn<Edit>("edit");
    const auto row = [](const char *name, Edit edit) { QTest::newRow(name) << edit; };
    row("language added", [](auto &p) { p.addSupportedLanguage(language("ja_JP")); });
    row("language removed", [](auto &p) { p.removeSupportedLanguage(language("en_US")); });
    row("cleared", [](auto &p) { p.clear(); });
    row("assigned", [](auto &p) { p = PackageInfoModel(fullRecord()); });
    row("loaded", [this](auto &p) { static_cast<void>(p.loadFromManifestContent(m_manifest)); });
    row("behaviors cleared", [](auto &p) { p.clearBehaviors(); });
    row("behaviors created", [](auto &p) { p.createBehaviorInfoModels(); });
    row("moved", [](auto &p) {
        PackageInfoModel other;
        other.addBehavior(p.behaviors().at(0));
    });
    row("plain texts", [](auto &p) { p.genPlainTextFromScript(); });
}

// Deletes the package at its first, second, ... notification.
void TestLifetimes::packageGoesInAnyNotification() {
    QFETCH(Edit, edit);
    bool isDeleted = true;
    for (int number = 0; isDeleted; ++number) {
        auto *package = new PackageInfoModel(fullRecord());
        const QPointer<PackageInfoModel> living(package);
        int left = number;
        const Observer observer(*package, [&] {
            if (left-- == 0)
                delete package;
        });
        edit(*package);
        isDeleted = !living;
        delete living.data();
        QVERIFY(number != 0 || isDeleted);
    }
}

void TestLifetimes::childrenGoFirst() {
    auto package = std::make_unique<PackageInfoModel>(fullRecord());
    int seen = 0;
    const auto query = [&, model = package.get()] {
        seen += int(model->behaviors().size() + model->dialogs().size());
        model->addBehavior(text("late"));
        QVERIFY(!model->behavior(text("late")));
    };
    for (const QObject *child : package->children())
        connect(child, &QObject::destroyed, this, query);
    package.reset();
    QCOMPARE(seen, 0);
}

void TestLifetimes::toggledLanguage() {
    PackageInfoModel package(fullRecord());
    connect(package.dialogs().at(0), &DialogInfoModel::topicRemoved, this, [&] {
        package.removeSupportedLanguage(m_english);
        package.addSupportedLanguage(m_english);
    });
    package.removeSupportedLanguage(m_english);
    QCOMPARE(disagreement(package), QString());
}

using Setter = std::function<void(PackageInfoModel &, const QString &)>;
Q_DECLARE_METATYPE(Setter)

void TestLifetimes::argumentsInTheModel_data() {
    QTest::addColumn<Setter>("set");
    const auto row = [](const char *name, Setter set) { QTest::newRow(name) << set; };
    row("installer", &PackageInfoModel::setInstaller);
    row("uid", &PackageInfoModel::setUid);
    row("type version", &PackageInfoModel::setTypeVersion);
    row("author", &PackageInfoModel::setAuthor);
    row("organization", &PackageInfoModel::setOrganization);
    row("date", &PackageInfoModel::setDate);
    row("channel", &PackageInfoModel::setChannel);
    row("path", &PackageInfoModel::setPath);
    const auto behavior = [](auto set) {
        return [set](PackageInfoModel &p, const QString &t) { (p.behaviors().at(0)->*set)(t); };
    };
    row("behavior path", behavior(&BehaviorInfoModel::setPath));
    row("nature", behavior(&BehaviorInfoModel::setNature));
    row("permission", behavior(&BehaviorInfoModel::addPermission));
    const auto dialog = [](auto set) {
        return [set](PackageInfoModel &p, const QString &t) { (p.dialogs().at(0)->*set)(t); };
    };
    row("topic name", dialog(&DialogInfoModel::setTopicName));
    row("topic type version", dialog(&DialogInfoModel::setTypeVersion));
    const auto service = [](auto set) {
        return [set](PackageInfoModel &p, const QString &t) { (p.services().at(0)->*set)(t); };
    };
    row("service name", service(&ServiceInfoModel::setName));
    row("start command", service(&ServiceInfoModel::setExecStart));
}

// The first receiver removes the text that the argument refers to; the second one reads the
// argument.
void TestLifetimes::argumentsInTheModel() {
    QFETCH(Setter, set);
    PackageInfoModel package(fullRecord());
    const QString expected(package.names().front().first.constData()); // a deep copy
    const auto clear = [&] {
        if (!package.names().empty())
            package.clearNames();
    };
    SignalLog received;
    QObject *objects[]{&package, package.behaviors().at(0), package.dialogs().at(0),
                       package.services().at(0)};
    std::vector<std::unique_ptr<Observer>> observers;
    for (QObject *object : objects) {
        observers.push_back(std::make_unique<Observer>(*object, clear));
        received.watch(*object);
    }
    set(package, package.names().front().first);
    QCOMPARE(received.take().filter(SignalLog::print(expected)).size(), 1);
}

void TestLifetimes::contentIsASlice() {
    const QByteArray longer = m_manifest + "<junk>";
    PackageInfoModel package;
    QVERIFY(package.loadFromManifestContent(
        QByteArray::fromRawData(longer.constData(), int(m_manifest.size()))));

    QByteArray content = m_manifest;
    const Observer observer(package, [&] { content.fill('x'); });
    QVERIFY(package.loadFromManifestContent(content));
    QCOMPARE(package.saveToManifestContent(), m_manifest);
}

void TestLifetimes::validatorWithoutPackage() {
    auto package = std::make_unique<PackageInfoModel>();
    PackageInfoValidator validator(package.get());
    validator.activate();
    QVERIFY(validator.hasErrors() && !validator.hasWarnings());
    QCOMPARE(
        validator.packageErrors(),
        std::set<PackageError>({PackageError::InvalidUID, PackageError::InvalidRobotRequirements,
                                PackageError::InvalidBrioRequirements}));
    package->addSupportedLanguage(m_french);
    QCOMPARE(validator.packageWarnings(),
             std::set<PackageWarning>(
                 {PackageWarning::MissingNames, PackageWarning::MissingDescriptions}));
    package.reset();
    SignalLog log(validator);
    validator.validateAll();
    validator.validateTriggerSentences(nullptr);
    validator.setPackageErrors(PackageError::InvalidUID, false);
    validator.deactivate();
    validator.activate();
    QCOMPARE(log.take(), QStringList());
}

void TestLifetimes::removedChildrenStayRemoved() {
    PackageInfoModel package(fullRecord());
    PackageInfoModel other;
    connect(&package, &PackageInfoModel::behaviorRemoved, this, [&](BehaviorInfoModel *child) {
        package.addBehavior(child);
        other.addBehavior(child);
    });
    QVERIFY(package.removeBehavior(text("a")));
    QCOMPARE(package.packageInfo().behaviors().size(), std::size_t(1));
    QVERIFY(other.behaviors().isEmpty());
    QCOMPARE(disagreement(package), QString());

    delete package.behaviors().at(0);
    QVERIFY(package.packageInfo().behaviors().empty());
}

void TestLifetimes::commandsOfTwoPackages() {
    PackageInfoModel first(fullRecord());
    PackageInfoModel second(fullRecord());
    QUndoStack stack;
    stack.push(new BehaviorPathCommand(&first, text("a"), text("x"), false));
    second.behavior(text("a"))->setPath(text("x"));
    stack.push(new BehaviorPathCommand(&second, text("x"), text("y"), false));
    stack.push(new DialogInfoModelNameCommand(&first, text("a"), text("x"), false));
    second.dialog(text("a"))->setTopicName(text("x"));
    stack.push(new DialogInfoModelNameCommand(&second, text("x"), text("y"), false));
    QCOMPARE(stack.count(), 2);
    stack.undo();
    stack.undo();
    QVERIFY(first.behavior(text("a")) && second.behavior(text("y")));
    QVERIFY(first.dialog(text("a")) && second.dialog(text("y")));
}

void TestLifetimes::movingToAnotherPackage() {
    PackageInfoModel from(fullRecord());
    PackageInfoModel to;
    connect(&from, &PackageInfoModel::behaviorRemoved, this, [&](BehaviorInfoModel *removed) {
        QCOMPARE(removed->parentPackage(), &from);
        QVERIFY(to.behaviors().isEmpty());
    });
    to.addBehavior(from.behaviors().at(0));
    QCOMPARE(to.behaviors().at(0)->parentPackage(), &to);
    QCOMPARE(disagreement(from) + disagreement(to), QString());
}

void TestLifetimes::copiesOfAHalfLoadedPackage() {
    PackageInfoModel package;
    const Observer observer(package, [&] {
        PackageInfoModel copy(package);
        copy.syncRecord();
        QCOMPARE(disagreement(copy), QString());
    });
    QVERIFY(package.loadFromManifestContent(m_manifest));
}

void TestLifetimes::theLastLoadWins() {
    PackageInfoModel other;
    other.setAuthor(text("other"));
    other.addBehavior(text("other"));
    const QByteArray manifest = other.saveToManifestContent();
    PackageInfoModel package(fullRecord());
    bool isLoading = true;
    const Observer observer(package, [&] {
        if (std::exchange(isLoading, false))
            QVERIFY(package.loadFromManifestContent(manifest));
    });
    QVERIFY(!package.loadFromManifestContent(m_manifest));
    QCOMPARE(package.saveToManifestContent(), manifest);

    const auto loadFull = [&] { QVERIFY(package.loadFromManifestContent(m_manifest)); };
    loadFull();
    connect(package.dialogs().at(0), &DialogInfoModel::topicRemoved, this, loadFull);
    package.removeSupportedLanguage(m_english);
    QCOMPARE(package.saveToManifestContent(), m_manifest);
    QVERIFY(package.loadFromManifestContent(manifest));
    QCOMPARE(package.saveToManifestContent(), manifest);
    QCOMPARE(disagreement(package), QString());
}

void TestLifetimes::metaTypes() {
    PackageInfoModel package(fullRecord());
    PackageInfoValidator validator(&package);
    QSignalSpy spy(&validator, &PackageInfoValidator::triggerSentencesStateChanged);
    validator.validateAll();
    const BehaviorInfoModel *first = package.behaviors().at(0);
    QCOMPARE(spy.at(0).at(0).value<const BehaviorInfoModel *>(), first);

    const Tano::BehaviorInfo behavior = first->toBehaviorInfo();
    QVERIFY(QMetaObject::invokeMethod(&package, "addBehavior", Qt::QueuedConnection,
                                      Q_ARG(Tano::BehaviorInfo, behavior)));
    QVERIFY(QMetaObject::invokeMethod(&package, "addDialog", Qt::QueuedConnection,
                                      Q_ARG(Tano::DialogInfo, Tano::DialogInfo())));
    QVERIFY(QMetaObject::invokeMethod(&package, "addService", Qt::QueuedConnection,
                                      Q_ARG(Tano::PackageService, Tano::PackageService())));
    QCoreApplication::processEvents();
    QCOMPARE(package.behaviors().size() + package.dialogs().size() + package.services().size(), 9);
}

QTEST_MAIN(TestLifetimes)
#include "tst_lifetimes.moc"
