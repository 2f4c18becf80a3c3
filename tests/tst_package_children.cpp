#include "signal_log.h"
#include "text.h"
#include "warning_guard.h"

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

// The paths of the behaviors in the record.
QStringList recorded(const PackageInfoModel &model) {
    QStringList paths;
    for (const Tano::BehaviorInfo &info : model.packageInfo().behaviors())
        paths.append(fromUtf8(info.path()));
    return paths;
}

} // namespace

class TestPackageChildren : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_warnings.watch(); }
    void cleanup() { QCOMPARE(m_warnings.take(), QStringList()); }

    void lookingUp_data();
    void lookingUp();
    void lookingUpWhileChangesWait();
    void lookingUpAfterManyInsertions();
    void outlivingThePackage();
    void packagesFollowTheirBehaviors_data();
    void packagesFollowTheirBehaviors();
    void receiversMayEdit();
    void removalsAreAnnouncedOnce_data();
    void removalsAreAnnouncedOnce();
    void needsNoDisplay();

private:
    WarningGuard m_warnings;
    const RobotLanguage m_french = language("fr_FR");
};

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

// Between two neighbors, the lookup's labels run out after 32 insertions.
void TestPackageChildren::lookingUpAfterManyInsertions() {
    PackageInfoModel model;
    model.addBehavior(behavior("last"));
    QVERIFY(!model.behavior(text("x")));
    for (int i = 0; i < 100; ++i) {
        model.insertBehavior(i % 2, behavior("x"));
        QCOMPARE(model.behaviors().indexOf(model.behavior(text("x"))), 0);
        QCOMPARE(model.behaviors().indexOf(model.behavior(text("last"))), i + 1);
    }
    model.behaviors().at(50)->setNature(text("solitary"));
    QCOMPARE(model.packageInfo().behaviors().at(50).nature(), std::string("solitary"));
}

using Receiver = std::function<void(PackageInfoModel &, BehaviorInfoModel *)>;
Q_DECLARE_METATYPE(Receiver)

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
    QCOMPARE(second.packageInfo().behaviors().at(0), child->toBehaviorInfo());
}

void TestPackageChildren::packagesFollowTheirBehaviors_data() {
    QTest::addColumn<bool>("isGiven"); // instead of made by the package
    QTest::addColumn<QStringList>("beforeAndAfter");
    QTest::newRow("made") << false << QStringList{text("new"), text("new")};
    QTest::newRow("given") << true << QStringList{text("old"), text("new")};
}

// A package is notified in the order of connection: after the receivers that a behavior had when it
// was added, and before the later ones.
void TestPackageChildren::packagesFollowTheirBehaviors() {
    QFETCH(bool, isGiven);
    PackageInfoModel model;
    QStringList seen;
    const auto look = [&] { seen += recorded(model); };
    auto *child = new BehaviorInfoModel(behavior("old"), nullptr);
    if (isGiven) {
        connect(child, &BehaviorInfoModel::pathUpdated, this, look);
        model.addBehavior(child);
    } else {
        model.addBehavior(child->toBehaviorInfo());
        delete std::exchange(child, model.behaviors().at(0));
        connect(child, &BehaviorInfoModel::pathUpdated, this, look);
    }
    connect(child, &BehaviorInfoModel::pathUpdated, this, look);
    child->setPath(text("new"));
    QTEST(seen, "beforeAndAfter");

    child->insertTag(text("t"), m_french, 0);
    QVERIFY(model.packageInfo().behaviors().front().languagesToTags().empty());
    Q_EMIT child->categoryAdded({});
    QCOMPARE(model.packageInfo().behaviors().front().languagesToTags().size(), 1U);
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
    QCOMPARE(recorded(model), QStringList());

    model.addBehavior(text("b"));
    QVERIFY(model.removeBehavior(text("b"))); // added again meanwhile, but still deleted
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
    QCOMPARE(recorded(model), QStringList(text("a")));
}

QTEST_GUILESS_MAIN(TestPackageChildren)
#include "tst_package_children.moc"
