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

// The differences between the caches of a package and those of a new one with the same record.
QString disagreement(const PackageInfoModel &package) {
    const PackageInfoModel fresh(package.packageInfo());
    if (!(fresh.packageInfo() == package.packageInfo()))
        return text("record");
    if (!(fresh.version() == package.version()))
        return text("version");
    if (fresh.supportedLanguages() != package.supportedLanguages())
        return text("supported languages");
    if (fresh.descriptionLanguages() != package.descriptionLanguages())
        return text("description languages");
    if (fresh.names() != package.names())
        return text("names");
    if (fresh.robotRequirements() != package.robotRequirements())
        return text("robot requirements");
    if (fresh.brioRequirements() != package.brioRequirements())
        return text("Brio requirements");
    const auto sameAs = [](auto record) {
        return [record](const auto *a, const auto *b) { return (a->*record)() == (b->*record)(); };
    };
    const auto differ = [&](const auto &a, const auto &b, auto record) {
        return !std::equal(a.begin(), a.end(), b.begin(), b.end(), sameAs(record));
    };
    if (differ(fresh.behaviors(), package.behaviors(), &BehaviorInfoModel::toBehaviorInfo))
        return text("behaviors");
    if (differ(fresh.dialogs(), package.dialogs(), &DialogInfoModel::toDialogInfo))
        return text("dialogs");
    if (differ(fresh.services(), package.services(), &ServiceInfoModel::toPackageService))
        return text("services");
    return {};
}

// Calls `react` at the first `count` notifications of an object's own class.
class Observer : public QObject {
public:
    using React = std::function<void(const QMetaMethod &notification, void **arguments)>;

    Observer(QObject &object, React react, int count = 1000)
        : m_react(std::move(react))
        , m_left(count)
        , m_meta(object.metaObject()) {
        const int slot = QObject::staticMetaObject.methodCount();
        for (int i = m_meta->methodOffset(); i < m_meta->methodCount(); ++i) {
            if (m_meta->method(i).methodType() == QMetaMethod::Signal)
                QMetaObject::connect(&object, i, this, slot + i, Qt::DirectConnection);
        }
    }
    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override {
        id = QObject::qt_metacall(call, id, arguments);
        if (id < 0 || call != QMetaObject::InvokeMetaMethod)
            return id;
        if (m_left-- > 0)
            m_react(m_meta->method(id), arguments);
        return -1;
    }

private:
    React m_react;
    int m_left;
    const QMetaObject *m_meta;
};

using Edit = std::function<void(PackageInfoModel &)>;

} // namespace

Q_DECLARE_METATYPE(Edit)

class TestLifetimes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_warnings.watch(); }
    void cleanup() { QCOMPARE(m_warnings.take(), QStringList()); }

    void removingTwice();
    void packageGoesInAnyNotification_data();
    void packageGoesInAnyNotification();
    void wholeChangesSurviveEdits_data();
    void wholeChangesSurviveEdits();
    void theLastLoadWins();
    void copiesOfAHalfLoadedPackage();
    void childrenGoFirst();
    void removedChildrenStayRemoved();
    void toggledLanguage();
    void argumentsInTheModel_data();
    void argumentsInTheModel();
    void contentIsASlice();
    void addedItemRemovesBehavior();
    void commandsOfTwoPackages();
    void commandsOutliveThePackage();
    void movingToAnotherPackage();
    void validatorAndDeletedBehaviors();
    void validatorGoesInAnyNotification_data();
    void validatorGoesInAnyNotification();
    void validatorWithoutPackage();
    void metaTypes();

private:
    WarningGuard m_warnings;
    const RobotLanguage m_english = language("en_US");
    const RobotLanguage m_french = language("fr_FR");
    const QByteArray m_manifest = PackageInfoModel(fullRecord()).saveToManifestContent();
};

void TestLifetimes::removingTwice() {
    PackageInfoModel model(fullRecord());
    BehaviorInfoModel *behavior = model.behaviors().at(0);
    DialogInfoModel *dialog = model.dialogs().at(0);
    ServiceInfoModel *service = model.services().at(0);
    QVERIFY(model.removeBehavior(behavior) && !model.removeBehavior(behavior));
    QVERIFY(model.removeDialog(dialog) && !model.removeDialog(dialog));
    QVERIFY(model.removeService(service) && !model.removeService(service));
    QCOMPARE(disagreement(model), QString());
}

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
        const Observer observer(*package, [&](auto &&...) {
            if (left-- == 0)
                delete package;
        });
        edit(*package);
        isDeleted = !living;
        delete living.data();
        QVERIFY(number != 0 || isDeleted);
    }
}

void TestLifetimes::wholeChangesSurviveEdits_data() {
    QTest::addColumn<Edit>("change");
    QTest::addColumn<Edit>("edit");
    const std::pair<const char *, Edit> changes[]{
        {"clear", [](auto &p) { p.clear(); }},
        {"assign", [](auto &p) { p = PackageInfoModel(fullRecord()); }},
        {"load", [this](auto &p) { QVERIFY(p.loadFromManifestContent(m_manifest)); }},
        {"fail", [](auto &p) { QVERIFY(!p.loadFromManifestContent("<x/>")); }},
    };
    const std::pair<const char *, Edit> edits[]{
        {"sync", [](auto &p) { p.syncRecord(); }},
        {"trim", [](auto &p) { p.trimExtraInfo(); }},
        {"version", [](auto &p) { p.setVersion(SoftwareVersionUtils::fromString(text("9.9"))); }},
        {"language", [](auto &p) { p.addSupportedLanguage(language("ja_JP")); }},
        {"no language", [](auto &p) { p.removeSupportedLanguage(language("en_US")); }},
        {"name", [](auto &p) { p.setName(text("x"), language("fr_FR")); }},
        {"requirements",
         [](auto &p) {
             p.addRobotRequirement({});
             p.addBrioRequirement({});
         }},
        {"behavior", [](auto &p) { p.addBehavior(text("new")); }},
        {"dialog", [](auto &p) { p.addDialog(text("new")); }},
        {"children",
         [](auto &p) {
             if (!p.behaviors().isEmpty())
                 p.behaviors().at(0)->setPath(p.behaviors().at(0)->path() + u'x');
             if (!p.dialogs().isEmpty())
                 p.removeDialog(0);
             p.clearServices();
         }},
    };
    for (const auto &change : changes) {
        for (const auto &edit : edits)
            QTest::addRow("%s, %s", change.first, edit.first) << change.second << edit.second;
    }
}

// An observer edits at each of the first notifications; afterwards record and caches agree.
void TestLifetimes::wholeChangesSurviveEdits() {
    QFETCH(Edit, change);
    QFETCH(Edit, edit);
    for (int count : {1, 3, 7, 12, 40}) {
        PackageInfoModel package(fullRecord());
        bool isBusy = false;
        const Observer observer(
            package,
            [&](auto &&...) {
                if (!std::exchange(isBusy, true)) {
                    edit(package);
                    isBusy = false;
                }
            },
            count);
        change(package);
        QCOMPARE(disagreement(package), QString());
        const QByteArray tag = QTest::currentDataTag();
        if (tag == "load, sync" || tag == "load, trim") // uses all languages for descriptions
            QCOMPARE(package.saveToManifestContent(), m_manifest);
    }
}

void TestLifetimes::theLastLoadWins() {
    PackageInfoModel other;
    other.setAuthor(text("other"));
    other.addBehavior(text("other"));
    const QByteArray manifest = other.saveToManifestContent();
    PackageInfoModel package(fullRecord());
    const Observer observer(
        package, [&](auto &&...) { QVERIFY(package.loadFromManifestContent(manifest)); }, 1);
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

void TestLifetimes::copiesOfAHalfLoadedPackage() {
    PackageInfoModel package;
    const Observer observer(package, [&](auto &&...) {
        PackageInfoModel copy(package);
        copy.syncRecord();
        QCOMPARE(disagreement(copy), QString());
    });
    QVERIFY(package.loadFromManifestContent(m_manifest));
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
    const auto clear = [&](auto &&...) { package.clearNames(); };
    QStringList received;
    const auto receive = [&](const QMetaMethod &notification, void **arguments) {
        if (notification.parameterCount() == 1)
            received.append(*static_cast<const QString *>(arguments[1]));
    };
    QObject *objects[]{&package, package.behaviors().at(0), package.dialogs().at(0),
                       package.services().at(0)};
    std::vector<std::unique_ptr<Observer>> observers;
    for (QObject *object : objects) {
        observers.push_back(std::make_unique<Observer>(*object, clear, 1));
        observers.push_back(std::make_unique<Observer>(*object, receive));
    }
    set(package, package.names().front().first);
    QCOMPARE(received, QStringList(expected));
}

void TestLifetimes::contentIsASlice() {
    const QByteArray longer = m_manifest + "<junk>";
    PackageInfoModel package;
    QVERIFY(package.loadFromManifestContent(
        QByteArray::fromRawData(longer.constData(), int(m_manifest.size()))));

    QByteArray content = m_manifest;
    const Observer observer(package, [&](auto &&...) { content.fill('x'); });
    QVERIFY(package.loadFromManifestContent(content));
    QCOMPARE(package.saveToManifestContent(), m_manifest);
}

void TestLifetimes::addedItemRemovesBehavior() {
    const QString a = text("a");
    const std::function<QUndoCommand *(PackageInfoModel *)> commands[]{
        [&](auto *p) { return BehaviorAddRemoveTagCommand::addCommand(p, a, a, m_english, -1); },
        [&](auto *p) { return BehaviorAddRemoveTagCommand::addCommand(p, a, a, m_english, 0); },
        [&](auto *p) {
            return BehaviorAddRemoveTriggerSentenceCommand::addCommand(p, a, a, m_english, -1);
        },
        [&](auto *p) {
            return BehaviorAddRemoveLoadingResponseCommand::addCommand(p, a, a, m_english, -1);
        },
        [&](auto *p) { return BehaviorAddRemoveConditionCommand::addCommand(p, a, a, a, -1); },
    };
    for (const auto &command : commands) {
        PackageInfoModel package(fullRecord());
        const Observer observer(*package.behaviors().at(0),
                                [&](auto &&...) { package.removeBehavior(a); });
        QUndoStack stack;
        stack.push(command(&package));
        QCOMPARE(package.behaviors().size(), 1);
        stack.undo();
        stack.redo();
        QCOMPARE(disagreement(package), QString());
    }
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

void TestLifetimes::commandsOutliveThePackage() {
    auto package = std::make_unique<PackageInfoModel>(fullRecord());
    QUndoStack stack;
    stack.push(
        new PackageStringCommand(package.get(), text("x"), PackageStringCommand::Author, true));
    stack.push(new BehaviorNatureCommand(package.get(), text("a"), text("x"), true));
    stack.push(new DialogInfoModelRemoveTopicCommand(package.get(), text("a"), m_english));
    struct Switch : PackageLanguageCommand {
        using PackageLanguageCommand::PackageLanguageCommand;
        void switchLanguage() override { model()->addSupportedLanguage({}); }
    };
    stack.push(new Switch(package.get(), m_french));
    package.reset();
    stack.setIndex(0);
    stack.setIndex(4);
}

void TestLifetimes::movingToAnotherPackage() {
    PackageInfoModel from(fullRecord());
    PackageInfoModel to;
    PackageInfoValidator validator(&from);
    validator.activate();
    QSignalSpy checked(&validator, &PackageInfoValidator::triggerSentencesStateChanged);
    BehaviorInfoModel *child = from.behaviors().at(0);
    QSignalSpy ownConnection(child, &BehaviorInfoModel::userRequestableChanged);
    QStringList events;
    const auto note = [&](const char *event) {
        events.append(QStringLiteral("%1 %2 %3")
                          .arg(text(event))
                          .arg(from.packageInfo().behaviors().size())
                          .arg(to.packageInfo().behaviors().size()));
    };
    connect(&from, &PackageInfoModel::behaviorRemoved, this, [&](BehaviorInfoModel *removed) {
        QCOMPARE(removed->parentPackage(), &from);
        note("removed");
    });
    connect(&to, &PackageInfoModel::behaviorAdded, this, [&] { note("added"); });
    to.addBehavior(child);
    QCOMPARE(events, QStringList({text("removed 1 0"), text("added 1 1")}));
    child->setUserRequestable(true);
    QCOMPARE(ownConnection.count(), 1);
    QCOMPARE(checked.count(), 0);
    QCOMPARE(disagreement(from) + disagreement(to), QString());

    QSignalSpy dialogRemoved(&from, &PackageInfoModel::dialogRemoved);
    QSignalSpy serviceRemoved(&from, &PackageInfoModel::serviceRemoved);
    to.addDialog(from.dialogs().at(0));
    to.addService(from.services().at(0));
    QCOMPARE(dialogRemoved.count() + serviceRemoved.count(), 2);
    to.dialogs().at(0)->setTypeVersion(text("2"));
    QCOMPARE(disagreement(from) + disagreement(to), QString());
    to.removeBehavior(child); // can be removed again
    QVERIFY(to.behaviors().isEmpty());
}

void TestLifetimes::validatorAndDeletedBehaviors() {
    PackageInfoModel package(fullRecord());
    const auto remove = [](BehaviorInfoModel *child) { delete child; };
    connect(&package, &PackageInfoModel::behaviorAdded, this, remove);
    connect(&package, &PackageInfoModel::behaviorRemoved, this, remove);
    PackageInfoValidator validator(&package);
    validator.activate();
    package.addBehavior(text("new"));
    package.removeBehavior(text("a"));
    package.clearBehaviors();
    validator.deactivate();
    QVERIFY(package.behaviors().isEmpty());
}

using Check = std::function<void(PackageInfoValidator &)>;
Q_DECLARE_METATYPE(Check)

void TestLifetimes::validatorGoesInAnyNotification_data() {
    QTest::addColumn<Check>("check");
    const auto row = [](const char *name, Check check) { QTest::newRow(name) << check; };
    row("activated", &PackageInfoValidator::activate);
    row("all", &PackageInfoValidator::validateAll);
    row("UID", &PackageInfoValidator::validateUID);
    row("names", &PackageInfoValidator::validateApplicationNames);
    row("descriptions", &PackageInfoValidator::validateApplicationDescriptions);
    row("behaviors", &PackageInfoValidator::validateBehaviorTriggerSentences);
}

void TestLifetimes::validatorGoesInAnyNotification() {
    QFETCH(Check, check);
    PackageInfoModel package(fullRecord());
    bool isDeleted = true;
    for (int number = 0; isDeleted; ++number) {
        auto *validator = new PackageInfoValidator(&package);
        const QPointer<PackageInfoValidator> living(validator);
        int left = number;
        const Observer observer(*validator, [&](auto &&...) {
            if (left-- == 0)
                delete validator;
        });
        check(*validator);
        isDeleted = !living;
        delete living.data();
        QVERIFY(number != 0 || isDeleted);
    }
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
    int notifications = 0;
    const Observer observer(validator, [&](auto &&...) { ++notifications; });
    validator.validateAll();
    validator.setPackageErrors(PackageError::InvalidUID, false);
    validator.deactivate();
    validator.activate();
    QCOMPARE(notifications, 0);
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
