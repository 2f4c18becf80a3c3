#include "signal_log.h"
#include "text.h"
#include "warning_guard.h"

#include <QPointer>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Zel;

namespace {

Tano::BehaviorInfo behavior(const char *path) {
    Tano::BehaviorInfo info;
    info.setPath(path);
    return info;
}

Tano::DialogInfo dialog(const char *name) {
    Tano::DialogInfo info;
    info.setTopicName(name);
    return info;
}

Tano::PackageService service(const char *name) {
    return {name, {}, false, {}};
}

const std::string &key(const Tano::BehaviorInfo &info) {
    return info.path();
}
const std::string &key(const Tano::DialogInfo &info) {
    return info.topicName();
}
const std::string &key(const Tano::PackageService &info) {
    return info.name;
}

template<typename Records>
QString keys(const Records &records) {
    QStringList result;
    for (const auto &record : records)
        result.append(fromUtf8(key(record)));
    return result.join(u' ');
}

// The record's three lists, in one line.
QString recorded(const PackageInfoModel &model) {
    const Tano::PackageInfo &info = model.packageInfo();
    return keys(info.behaviors()) % u'|' % keys(info.dialogs()) % u'|' % keys(info.services());
}

// What the record's behaviors must be: the children's, whole.
std::vector<Tano::BehaviorInfo> whole(const PackageInfoModel &model) {
    std::vector<Tano::BehaviorInfo> records;
    for (const BehaviorInfoModel *child : model.behaviors())
        records.push_back(child->toBehaviorInfo());
    return records;
}

} // namespace

class TestPackageChildren : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QCOMPARE(m_warnings.take(), QStringList()); }

    void initialisation();
    void adding();
    void addingWhatIsThere();
    void addingByKey();
    void removing();
    void removingWhatIsNotThere();
    void clearing();
    void lookingUp_data();
    void lookingUp();
    void lookingUpWhileChangesWait();
    void everyTrackedChangeReachesTheRecord_data();
    void everyTrackedChangeReachesTheRecord();
    void insertionsWait();
    void blockedChangesWait();
    void dialogAndServiceChanges();
    void removingKeepsLaterChangesInPlace();
    void movingToAnotherPackage();
    void outlivingThePackage();
    void deletedByOthers();
    void receiversMayEdit();
    void removalsAreAnnouncedOnce_data();
    void removalsAreAnnouncedOnce();
    void childrenGoWithThePackage();
    void needsNoDisplay();

private:
    WarningGuard m_warnings;
    const RobotLanguage m_french = language("fr_FR");
};

void TestPackageChildren::initialisation() {
    Tano::PackageInfo info;
    for (const char *name : {"b1", "b2"})
        info.addBehavior(behavior(name));
    for (const char *name : {"d1", "d2"})
        info.addDialog(dialog(name));
    for (const char *name : {"s1", "s2"})
        info.addService(service(name));
    PackageInfoModel source(info);
    QCOMPARE(recorded(source), text("b1 b2|d1 d2|s1 s2"));
    QCOMPARE(source.behaviors().size(), 2);
    QCOMPARE(source.behaviors().at(1)->path(), text("b2"));
    QCOMPARE(source.dialogs().at(1)->topicName(), text("d2"));
    QCOMPARE(source.services().at(1)->name(), text("s2"));
    QCOMPARE(source.behaviors().at(0)->parentPackage(), &source);

    const QByteArray manifest = source.saveToManifestContent();
    PackageInfoModel model;
    SignalLog log(model);
    log.onSignal("dialogAdded", [&] { return recorded(model); });
    log.onSignal("serviceAdded", [&] { return recorded(model); });
    QVERIFY(model.loadFromManifestContent(manifest));
    const QStringList children = log.take().filter(QRegularExpression(text("Added|  ")));
    QCOMPARE(children, QStringList({text("dialogAdded(d1)"), text("  b1 b2|d1|s1 s2"),
                                    text("dialogAdded(d2)"), text("  b1 b2|d1 d2|s1 s2"),
                                    text("serviceAdded(s1)"), text("  b1 b2|d1 d2|s1"),
                                    text("serviceAdded(s2)"), text("  b1 b2|d1 d2|s1 s2")}));

    model.createBehaviorInfoModels();
    QCOMPARE(log.take(), lines(R"(behaviorRemoved(b1)
                                  behaviorRemoved(b2))"));
    QCOMPARE(model.behaviors().size(), 2);
    QCOMPARE(recorded(model), text("b1 b2|d1 d2|s1 s2"));
}

void TestPackageChildren::adding() {
    PackageInfoModel model;
    SignalLog log(model);
    const auto state = [&] { return recorded(model); };
    for (const char *name : {"behaviorAdded", "dialogAdded", "serviceAdded"})
        log.onSignal(name, state);
    model.addBehavior(behavior("b1"));
    auto *second = new BehaviorInfoModel(behavior("b2"));
    model.addBehavior(second);
    model.addDialog(dialog("d1"));
    model.addDialog(new DialogInfoModel(dialog("d2")));
    model.addService(service("s1"));
    model.addService(new ServiceInfoModel(service("s2")));
    QCOMPARE(log.take(),
             QStringList({text("behaviorAdded(b1)"), text("  b1||"), text("behaviorAdded(b2)"),
                          text("  b1 b2||"), text("dialogAdded(d1)"), text("  b1 b2|d1|"),
                          text("dialogAdded(d2)"), text("  b1 b2|d1 d2|"), text("serviceAdded(s1)"),
                          text("  b1 b2|d1 d2|s1"), text("serviceAdded(s2)"),
                          text("  b1 b2|d1 d2|s1 s2")}));
    QCOMPARE(second->parentPackage(), &model);
    for (const QObject *child :
         {static_cast<QObject *>(second), static_cast<QObject *>(model.dialogs().at(1)),
          static_cast<QObject *>(model.services().at(1))})
        QCOMPARE(child->parent(), static_cast<QObject *>(&model));
}

void TestPackageChildren::addingWhatIsThere() {
    PackageInfoModel model;
    model.addBehavior(behavior("b"));
    model.addDialog(dialog("d"));
    model.addService(service("s"));
    SignalLog log(model);
    model.addBehavior(model.behaviors().front());
    model.addDialog(model.dialogs().front());
    model.addService(model.services().front());
    model.addBehavior(static_cast<BehaviorInfoModel *>(nullptr));
    model.addDialog(static_cast<DialogInfoModel *>(nullptr));
    model.addService(static_cast<ServiceInfoModel *>(nullptr));
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(recorded(model), text("b|d|s"));
}

void TestPackageChildren::addingByKey() {
    PackageInfoModel model;
    SignalLog log(model);
    QVERIFY(model.addBehavior(text("thé")));
    QVERIFY(!model.addBehavior(text("thé")));
    model.addDialog();
    model.addDialog(text(""));
    model.addDialog(text("thé"));
    QCOMPARE(log.take(), lines(R"(behaviorAdded(thé)
                                  dialogAdded()
                                  dialogAdded(thé))"));
    QCOMPARE(recorded(model), text("thé| thé|"));
}

void TestPackageChildren::removing() {
    PackageInfoModel model;
    for (const char *name : {"1", "2", "3"}) {
        model.addBehavior(behavior(name));
        model.addDialog(dialog(name));
        model.addService(service(name));
    }
    SignalLog log(model);
    const auto state = [&] { return recorded(model); };
    for (const char *name : {"behaviorRemoved", "dialogRemoved", "serviceRemoved"})
        log.onSignal(name, state);
    const QPointer<BehaviorInfoModel> child = model.behaviors().at(1);
    QVERIFY(model.removeBehavior(child.data()));
    QVERIFY(!child);
    QVERIFY(model.removeBehavior(text("1")));
    QVERIFY(model.removeDialog(2));
    QVERIFY(model.removeDialog(model.dialogs().at(0)));
    QVERIFY(model.removeService(text("2")));
    QVERIFY(model.removeService(model.services().at(1)));
    QCOMPARE(log.take(),
             QStringList({text("behaviorRemoved(2)"), text("  1 3|1 2 3|1 2 3"),
                          text("behaviorRemoved(1)"), text("  3|1 2 3|1 2 3"),
                          text("dialogRemoved(3)"), text("  3|1 2|1 2 3"), text("dialogRemoved(1)"),
                          text("  3|2|1 2 3"), text("serviceRemoved(2)"), text("  3|2|1 3"),
                          text("serviceRemoved(3)"), text("  3|2|1")}));
}

void TestPackageChildren::removingWhatIsNotThere() {
    PackageInfoModel model;
    model.addBehavior(behavior("b"));
    model.addDialog(dialog("d"));
    model.addService(service("s"));
    BehaviorInfoModel stranger(behavior("b"));
    SignalLog log(model);
    QVERIFY(!model.removeBehavior(&stranger));
    QVERIFY(!model.removeBehavior(static_cast<BehaviorInfoModel *>(nullptr)));
    QVERIFY(!model.removeBehavior(text("c")));
    for (int index : {-1, 1, 2})
        QVERIFY(!model.removeDialog(index));
    QVERIFY(!model.removeDialog(static_cast<DialogInfoModel *>(nullptr)));
    QVERIFY(!model.removeService(text("t")));
    QVERIFY(!model.removeService(static_cast<ServiceInfoModel *>(nullptr)));
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(recorded(model), text("b|d|s"));
}

void TestPackageChildren::clearing() {
    PackageInfoModel model;
    for (const char *name : {"1", "2", "3"}) {
        model.addBehavior(behavior(name));
        model.addService(service(name));
    }
    SignalLog log(model);
    log.onSignal("behaviorRemoved", [&] {
        QStringList paths; // reads every child, so none may be gone
        for (const BehaviorInfoModel *child : model.behaviors())
            paths.append(child->path());
        return paths.join(u' ');
    });
    model.clearBehaviors();
    model.clearServices();
    QCOMPARE(log.take(),
             QStringList({text("behaviorRemoved(1)"), text("  1 2 3"), text("behaviorRemoved(2)"),
                          text("  2 3"), text("behaviorRemoved(3)"), text("  3"),
                          text("serviceRemoved(1)"), text("serviceRemoved(2)"),
                          text("serviceRemoved(3)")}));
    QVERIFY(model.behaviors().isEmpty());
    QCOMPARE(recorded(model), text("1 2 3||1 2 3"));
    model.addBehavior(behavior("4"));
    QCOMPARE(recorded(model), text("4||1 2 3"));
    model.syncRecord();
    QCOMPARE(recorded(model), text("4||"));
}

void TestPackageChildren::lookingUp_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("index");
    QTest::newRow("empty") << QString() << 0;
    QTest::newRow("the first of two") << text("thé") << 1;
    QTest::newRow("malformed") << QString(QChar(QChar::ReplacementCharacter)) << 3;
    QTest::newRow("byte order mark") << QString(QChar(0xFEFF) % u'x') << 4;
    QTest::newRow("unknown") << text("th") << -1;
    QTest::newRow("NUL") << QString(text("thé") % QChar()) << -1;
    QTest::newRow("lone surrogate") << QString(QChar(0xD83E)) << -1;
}

void TestPackageChildren::lookingUp() {
    QFETCH(QString, key);
    PackageInfoModel model;
    for (const char *name : {"", "th\xC3\xA9", "th\xC3\xA9", "\xFF", "\xEF\xBB\xBFx"}) {
        model.addBehavior(behavior(name));
        model.addDialog(dialog(name));
        model.addService(service(name));
    }
    QTEST(int(model.behaviors().indexOf(model.behavior(key))), "index");
    QTEST(int(model.dialogs().indexOf(model.dialog(key))), "index");
    QTEST(int(model.services().indexOf(model.service(key))), "index");
}

void TestPackageChildren::lookingUpWhileChangesWait() {
    PackageInfoModel model;
    for (const char *path : {"a", "b", "c", "d"})
        model.addBehavior(behavior(path));
    const auto found = [&](const char *path) {
        return int(model.behaviors().indexOf(model.behavior(text(path))));
    };
    QCOMPARE(found("x"), -1);
    for (const auto &[renamed, first] : {std::pair(3, 3), {1, 1}, {2, 1}}) {
        const QSignalBlocker blocker(model.behaviors().at(renamed));
        model.behaviors().at(renamed)->setPath(text("x"));
        QCOMPARE(found("x"), first);
    }
    QCOMPARE(found("b"), -1);
    model.syncRecord();
    model.behaviors().at(3)->insertTag(text("t"), m_french, 0);
    QCOMPARE(found("x"), 1);
}

using Edit = std::function<void(BehaviorInfoModel &)>;
using Receiver = std::function<void(PackageInfoModel &, BehaviorInfoModel *)>;
Q_DECLARE_METATYPE(Edit)
Q_DECLARE_METATYPE(Receiver)

void TestPackageChildren::everyTrackedChangeReachesTheRecord_data() {
    QTest::addColumn<Edit>("edit");
    using B = BehaviorInfoModel;
    const RobotLanguage fr = m_french;
    const QString x = text("x");
    const auto row = [](const char *name, const Edit &edit) { QTest::newRow(name) << edit; };
    row("path", [=](B &b) { b.setPath(x); });
    row("nature", [=](B &b) { b.setNature(x); });
    row("name", [=](B &b) { b.setName(x, fr); });
    row("description", [=](B &b) { b.setDescription(x, fr); });
    row("user-requestable", [=](B &b) { b.setUserRequestable(true); });
    row("permission added", [=](B &b) { b.addPermission(x); });
    row("permission removed", [=](B &b) { b.removePermission(text("p")); });
    row("tag added", [=](B &b) { b.addTag(x, fr); });
    row("tag updated", [=](B &b) { b.updateTag(0, x, fr); });
    row("tag removed", [=](B &b) { b.removeTag(0, fr); });
    row("sentence added", [=](B &b) { b.addTriggerSentence(x, fr); });
    row("sentence updated", [=](B &b) { b.updateTriggerSentence(0, x, fr); });
    row("sentence removed", [=](B &b) { b.removeTriggerSentence(0, fr); });
    row("response added", [=](B &b) { b.addLoadingResponse(x, fr); });
    row("response updated", [=](B &b) { b.updateLoadingResponse(0, x, fr); });
    row("response removed", [=](B &b) { b.removeLoadingResponse(0, fr); });
    row("condition added", [=](B &b) { b.addCondition(x, text("p")); });
    row("condition updated", [=](B &b) { b.updateCondition(0, x, text("p")); });
    row("condition removed", [=](B &b) { b.removeCondition(0, text("p")); });
    row("category added", [=](B &b) { b.insertTag(x, fr, 0), Q_EMIT b.categoryAdded(x); });
    row("category updated", [=](B &b) { b.insertTag(x, fr, 0), Q_EMIT b.categoryUpdated(0, x); });
    row("category removed", [=](B &b) { b.insertTag(x, fr, 0), Q_EMIT b.categoryRemoved(0); });
}

void TestPackageChildren::everyTrackedChangeReachesTheRecord() {
    QFETCH(Edit, edit);
    Tano::BehaviorInfo info = behavior("b");
    info.addPermission("p");
    info.addTag("t", "fr_FR");
    info.addTriggerSentence("t", "fr_FR");
    info.addLoadingResponse("l", "fr_FR");
    info.addCondition("c", "p");
    Tano::PackageInfo package;
    package.addBehavior(behavior("a"));
    package.addBehavior(info);
    package.addBehavior(behavior("c"));
    PackageInfoModel model(package);
    edit(*model.behaviors().at(1));
    QVERIFY(model.packageInfo().behaviors().at(1) != info);
    QCOMPARE(model.packageInfo().behaviors(), whole(model));
}

void TestPackageChildren::insertionsWait() {
    PackageInfoModel model;
    for (const char *path : {"a", "b", "c"})
        model.addBehavior(behavior(path));
    BehaviorInfoModel *child = model.behaviors().at(1);
    const auto before = model.packageInfo().behaviors();
    child->insertTag(text("x"), m_french, 0);
    child->insertTriggerSentence(text("x"), m_french, 0);
    child->insertLoadingResponse(text("x"), m_french, 0);
    child->insertCondition(text("x"), text("p"), 0);
    QCOMPARE(model.packageInfo().behaviors(), before);
    model.behaviors().at(2)->setNature(text("solitary"));
    QCOMPARE(model.packageInfo().behaviors(), whole(model));
    child->insertTag(text("y"), m_french, 0);
    QVERIFY(model.packageInfo().behaviors() != whole(model));
    model.syncRecord();
    QCOMPARE(model.packageInfo().behaviors(), whole(model));
}

void TestPackageChildren::blockedChangesWait() {
    PackageInfoModel model;
    for (const char *path : {"a", "b", "c"})
        model.addBehavior(behavior(path));
    {
        const QSignalBlocker blocker(model.behaviors().at(0));
        model.behaviors().at(0)->setPath(text("x"));
    }
    model.behaviors().at(2)->trimExtraInfo({}, {});
    QCOMPARE(recorded(model), text("a b c||"));
    model.removeBehavior(model.behaviors().at(1));
    QCOMPARE(recorded(model), text("x c||"));
}

void TestPackageChildren::dialogAndServiceChanges() {
    PackageInfoModel model;
    for (const char *name : {"1", "2"}) {
        model.addDialog(dialog(name));
        model.addService(service(name));
    }
    DialogInfoModel &second = *model.dialogs().at(1);
    const auto topics = [&] { return model.packageInfo().dialogs().at(1).topics().size(); };
    second.setTopicName(text("x"));
    second.setTopic(m_french, text("f.top"));
    QCOMPARE(topics(), size_t(1));
    second.removeTopic(m_french);
    QCOMPARE(topics(), size_t(0));
    second.setTypeVersion(text("2"));
    QCOMPARE(model.packageInfo().dialogs().at(1), second.toDialogInfo());

    ServiceInfoModel &first = *model.services().at(0);
    const auto recordedService = [&] { return model.packageInfo().services().at(0); };
    first.setName(text("x"));
    QCOMPARE(recordedService().name, std::string("x"));
    first.setExecStart(text("run"));
    QCOMPARE(recordedService().execStart, std::string("run"));
    first.setAutoRun();
    QVERIFY(recordedService().autoRun);
    QCOMPARE(recorded(model), text("|1 x|x 2"));
}

void TestPackageChildren::removingKeepsLaterChangesInPlace() {
    PackageInfoModel model;
    for (const char *path : {"a", "b", "c", "d"})
        model.addBehavior(behavior(path));
    BehaviorInfoModel *doomed = model.behaviors().at(0);
    doomed->insertTag(text("x"), m_french, 0);
    model.behaviors().at(3)->insertTag(text("y"), m_french, 0);
    model.removeBehavior(doomed);
    QCOMPARE(model.packageInfo().behaviors(), whole(model));
    model.behaviors().at(1)->setPath(text("z"));
    model.addBehavior(behavior("e"));
    QCOMPARE(recorded(model), text("b z d e||"));
    QCOMPARE(model.packageInfo().behaviors(), whole(model));
}

void TestPackageChildren::movingToAnotherPackage() {
    PackageInfoModel source;
    PackageInfoModel target;
    for (const char *path : {"a", "b"})
        source.addBehavior(behavior(path));
    SignalLog log;
    log.watch(source, text("source"));
    log.watch(target, text("target"));
    BehaviorInfoModel *child = source.behaviors().at(0);
    target.addBehavior(child);
    QCOMPARE(log.take(), lines("target.behaviorAdded(a)"));
    QCOMPARE(recorded(source), text("b||"));
    QCOMPARE(recorded(target), text("a||"));
    QCOMPARE(child->parentPackage(), &target);
    source.clearBehaviors(); // the record waits for a change of the package's own behaviors
    child->setPath(text("x"));
    QCOMPARE(recorded(source), text("b||"));
    QCOMPARE(recorded(target), text("x||"));
}

void TestPackageChildren::outlivingThePackage() {
    auto first = std::make_unique<PackageInfoModel>();
    PackageInfoModel second;
    first->addBehavior(behavior("a"));
    BehaviorInfoModel *child = first->behaviors().at(0);
    child->insertTag(text("x"), m_french, 0);
    child->setParent(nullptr);
    first.reset();
    child->insertTag(text("y"), m_french, 0);
    second.addBehavior(child);
    child->setPath(text("b"));
    QCOMPARE(second.packageInfo().behaviors(), whole(second));
}

void TestPackageChildren::deletedByOthers() {
    PackageInfoModel model;
    for (const char *path : {"a", "b", "c"})
        model.addBehavior(behavior(path));
    SignalLog log(model);
    model.behaviors().at(2)->insertTag(text("x"), m_french, 0);
    delete model.behaviors().at(2);
    delete model.behaviors().at(0);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(model.behaviors().size(), 1);
    model.behaviors().at(0)->setNature(text("solitary"));
    QCOMPARE(recorded(model), text("b||"));
}

void TestPackageChildren::receiversMayEdit() {
    PackageInfoModel model;
    for (const char *path : {"a", "b", "c", "d"})
        model.addBehavior(behavior(path));
    connect(&model, &PackageInfoModel::behaviorRemoved, this, [&](BehaviorInfoModel *removed) {
        if (removed->path() == text("a")) {
            delete removed;
            model.removeBehavior(text("c"));
            model.addBehavior(text("new"));
        } else if (removed->path() == text("b")) {
            removed->setPath(text("renamed"));
            model.addBehavior(removed);
        }
    });
    model.clearBehaviors();
    QCOMPARE(model.behaviors().size(), 1);
    QCOMPARE(model.behaviors().at(0)->path(), text("new"));
    QVERIFY(model.removeBehavior(text("new")));
    QCOMPARE(recorded(model), text("||"));

    model.addBehavior(text("b"));
    QVERIFY(model.removeBehavior(text("b"))); // added again meanwhile, deleted all the same
    QVERIFY(model.behaviors().isEmpty());
}

void TestPackageChildren::removalsAreAnnouncedOnce_data() {
    QTest::addColumn<Receiver>("receiver");
    const auto row = [](const char *name, const Receiver &receiver) {
        QTest::newRow(name) << receiver;
    };
    row("removed again", [](auto &model, auto *child) { QVERIFY(!model.removeBehavior(child)); });
    row("cleared again", [](auto &model, auto *) { model.clearBehaviors(); });
    row("reset", [](auto &model, auto *) { model.clear(); });
}

void TestPackageChildren::removalsAreAnnouncedOnce() {
    QFETCH(Receiver, receiver);
    PackageInfoModel model;
    for (const char *path : {"a", "b", "c"})
        model.addBehavior(behavior(path));
    SignalLog log(model);
    connect(&model, &PackageInfoModel::behaviorRemoved, this,
            [&](BehaviorInfoModel *removed) { receiver(model, removed); });
    model.clearBehaviors();
    const QRegularExpression removals(text("^behavior"));
    QCOMPARE(log.take().filter(removals), lines(R"(behaviorRemoved(a)
                                                   behaviorRemoved(b)
                                                   behaviorRemoved(c))"));
    QVERIFY(model.behaviors().isEmpty());
}

void TestPackageChildren::childrenGoWithThePackage() {
    auto model = std::make_unique<PackageInfoModel>();
    model->addBehavior(text("a"));
    model->addDialog(text("d"));
    model->addService(service("s"));
    const QPointer<QObject> behavior = model->behaviors().at(0);
    const QPointer<QObject> dialog = model->dialogs().at(0);
    const QPointer<QObject> service = model->services().at(0);
    model.reset();
    QVERIFY(!behavior && !dialog && !service);
}

void TestPackageChildren::needsNoDisplay() {
    const QTemporaryDir dir;
    PackageInfoModel source;
    source.addBehavior(text("a"));
    QVERIFY(source.saveToManifestFile(dir.filePath(text("manifest.xml"))));
    QFile icon(dir.filePath(text("icon.png")));
    QVERIFY(icon.open(QFile::WriteOnly));
    PackageInfoModel model;
    QVERIFY(model.loadFromManifestFile(dir.filePath(text("manifest.xml"))));
    QVERIFY(model.icon().isNull());
    QCOMPARE(recorded(model), text("a||"));
}

QTEST_GUILESS_MAIN(TestPackageChildren)
#include "tst_package_children.moc"
