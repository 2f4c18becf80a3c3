#include "signal_log.h"
#include "text.h"
#include "warning_guard.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <sstream>

using namespace Zel;

namespace {

const QByteArray manifest = R"(<?xml version="1.0" encoding="UTF-8"?>
<package format="1" uid="tea-time" version="2.1">
  <author>Ines</author>
  <supportedLanguage code="en_US"/>
  <supportedLanguage code="ql_QA"/>
  <descriptionLanguage code="en_US"/>
  <texts language="en_US">
    <name>Tea</name>
    <description>Brews.</description>
  </texts>
  <texts language="ql_QB">
    <name>Unheard</name>
  </texts>
  <robotRequirement model="TERN" minBodyVersion="2.1"/>
  <robotRequirement model="TERN" minBodyVersion="2.1"/>
  <brioRequirement minVersion="2.5" maxVersion="3.0"/>
  <behavior path="pour" nature="interactive">
    <texts language="ql_QC">
      <tag>tea</tag>
    </texts>
  </behavior>
  <!-- kept -->
  <dialog topicName="talk">
    <topic language="ql_QD">a.top</topic>
  </dialog>
  <service name="watch"/>
</package>
)";

void writeFile(const QString &path, const QByteArray &content) {
    QFile file(path);
    QVERIFY(file.open(QFile::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

void writeIcon(const QString &path, Qt::GlobalColor color) {
    QImage image(QSize(8, 8), QImage::Format_ARGB32);
    image.fill(color);
    QVERIFY(image.save(path));
}

// A package that differs from the manifest's in everything.
std::unique_ptr<PackageInfoModel> anotherPackage() {
    auto model = std::make_unique<PackageInfoModel>();
    model->setUid(text("other"));
    model->setAuthor(text("Bo"));
    model->setInstaller(text("i"));
    model->setName(text("Thé"), language("fr_FR"));
    model->setDescription(text("Infuse."), language("fr_FR"));
    model->addSupportedLanguage(language("fr_FR"));
    model->addRobotRequirement();
    model->addBehavior(text("old"));
    model->addDialog(text("old"));
    model->addService(Tano::PackageService{"old", {}, false, {}});
    return model;
}

} // namespace

class TestPackageLoading : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QCOMPARE(m_warnings.take(), QStringList()); }

    void loads();
    void notificationsOfALoad();
    void unknownLanguagesAreKept();
    void failedLoads_data();
    void failedLoads();
    void contentEndsAtNul();
    void loadsFiles();
    void iconBesideTheManifest();
    void saves();
    void shippedManifestsComeBack_data();
    void shippedManifestsComeBack();
    void clears();
    void copies();
    void notificationsOfAnAssignment();
    void assigningTwice();
    void selfAssignment();
    void editsAfterAnAssignment();
    void receiversOfAnAssignment();
    void defaultIcon();

private:
    WarningGuard m_warnings;
    const RobotLanguage m_english = language("en_US");
    const RobotLanguage m_french = language("fr_FR");
};

void TestPackageLoading::loads() {
    PackageInfoModel model;
    QVERIFY(model.loadFromManifestContent(manifest));
    QCOMPARE(model.uid(), text("tea-time"));
    QCOMPARE(SignalLog::print(model.version()), text("2.1.0"));
    QCOMPARE(SignalLog::print(model.supportedLanguages()), text("[en_US, ql_QA]"));
    QCOMPARE(SignalLog::print(model.descriptionLanguages()), text("[en_US, ql_QA]"));
    QCOMPARE(model.name(m_english), text("Tea"));
    QCOMPARE(model.description(m_english), text("Brews."));
    QCOMPARE(model.robotRequirements().size(), 2);
    QCOMPARE(SignalLog::print(model.robotRequirement(1)), text("TERN///2.1/"));
    QCOMPARE(SignalLog::print(model.brioRequirement(0)), text("2.5/3.0"));
    QVERIFY(model.behavior(text("pour")));
    QVERIFY(model.dialog(text("talk")));
    QVERIFY(model.service(text("watch")));

    QByteArray expected = manifest;
    expected.replace("version=\"2.1\"", "version=\"2.1.0\"");
    expected.replace("<descriptionLanguage code=\"en_US\"/>\n",
                     "<descriptionLanguage code=\"en_US\"/>\n"
                     "  <descriptionLanguage code=\"ql_QA\"/>\n");
    QCOMPARE(model.saveToManifestContent(), expected);
}

void TestPackageLoading::notificationsOfALoad() {
    const auto model = anotherPackage();
    SignalLog log(*model);
    log.onSignal("loadedFromManifest", [&] { return model->name(m_english); });
    QVERIFY(model->loadFromManifestContent(manifest));
    QCOMPARE(log.take(), QStringList({text("versionUpdated(0.0.0)"), text("authorUpdated(\"\")"),
                                      text("installerUpdated(\"\")"), text("uidUpdated(\"\")"),
                                      text("namesCleared()"), text("languageRemoved(fr_FR)"),
                                      text("descriptionRemoved(fr_FR)"),
                                      text("behaviorRemoved(old)"), text("dialogRemoved(old)"),
                                      text("serviceRemoved(old)"), text("versionUpdated(2.1.0)"),
                                      text("dialogAdded(talk)"), text("serviceAdded(watch)"),
                                      text("loadedFromManifest()"), text("  Tea")}));
    PackageInfoModel fresh;
    QVERIFY(fresh.loadFromManifestContent(manifest));
    QCOMPARE(model->packageInfo(), fresh.packageInfo());
}

void TestPackageLoading::unknownLanguagesAreKept() {
    const QByteArray content = QByteArray(manifest).replace("ql_", "qm_");
    PackageInfoModel model;
    connect(&model, &PackageInfoModel::dialogAdded, this, [] {
        QCOMPARE(language("qm_QC").isoCode(),
                 text("qm_QC")); // known before children are
    });
    QVERIFY(model.loadFromManifestContent(content));
    for (const char *code : {"qm_QA", "qm_QB", "qm_QC", "qm_QD"})
        QCOMPARE(robotLanguage(text(code)).isoCode(), text(code));
    QCOMPARE(model.name(language("qm_QB")), text("Unheard"));
    QCOMPARE(model.behavior(text("pour"))->tags(language("qm_QC")), QStringList(text("tea")));
    QCOMPARE(model.dialog(text("talk"))->topic(language("qm_QD")), text("a.top"));
}

void TestPackageLoading::failedLoads_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("cut") << manifest.left(manifest.size() - 5);
    QTest::newRow("another root") << QByteArray("<box format=\"1\"/>");
}

void TestPackageLoading::failedLoads() {
    QFETCH(QByteArray, content);
    const auto model = anotherPackage();
    SignalLog log(*model);
    QVERIFY(!model->loadFromManifestContent(content));
    QVERIFY(!model->packageInfo().errorString().empty());
    QCOMPARE(log.take(), lines(R"(versionUpdated(0.0.0)
                                  authorUpdated("")
                                  installerUpdated("")
                                  uidUpdated("")
                                  namesCleared()
                                  languageRemoved(fr_FR)
                                  descriptionRemoved(fr_FR)
                                  behaviorRemoved(old)
                                  dialogRemoved(old)
                                  serviceRemoved(old))"));
    QCOMPARE(model->packageInfo(), PackageInfoModel().packageInfo());
    QVERIFY(model->behaviors().isEmpty() && model->dialogs().isEmpty());
    QVERIFY(model->services().isEmpty() && model->robotRequirements().isEmpty());
    QVERIFY(model->loadFromManifestContent(manifest));
    QVERIFY(model->packageInfo().errorString().empty());
    QVERIFY(model->description(m_french).isEmpty());
}

void TestPackageLoading::contentEndsAtNul() {
    PackageInfoModel model;
    QVERIFY(model.loadFromManifestContent(manifest + '\0' + "<rest"));
    QCOMPARE(model.uid(), text("tea-time"));
}

void TestPackageLoading::loadsFiles() {
    const QTemporaryDir dir;
    const QString path = dir.filePath(text("thé.xml"));
    writeFile(path, manifest);
    PackageInfoModel model;
    QVERIFY(model.loadFromManifestFile(path));
    QCOMPARE(model.uid(), text("tea-time"));

    QFile file(path);
    QVERIFY(file.open(QFile::ReadOnly));
    PackageInfoModel fromOpenFile;
    QVERIFY(fromOpenFile.loadFromManifestFile(file));
    QCOMPARE(fromOpenFile.packageInfo(), model.packageInfo());

    QVERIFY(!model.loadFromManifestFile(dir.filePath(text("none.xml"))));
    QVERIFY(model.uid().isEmpty());
}

void TestPackageLoading::iconBesideTheManifest() {
    const QTemporaryDir dir;
    const QString path = dir.filePath(text("manifest.xml"));
    writeFile(path, manifest);
    writeIcon(dir.filePath(text("icon.png")), Qt::red);
    PackageInfoModel model;
    SignalLog log(model);
    QVERIFY(model.loadFromManifestFile(path));
    QCOMPARE(log.take().filter(QRegularExpression(text("icon|talk|loaded"))),
             lines(R"(iconUpdated(icon)
                      dialogAdded(talk)
                      loadedFromManifest())"));
    QCOMPARE(model.icon().pixmap(8, 8).toImage().pixelColor(1, 1), QColor(Qt::red));

    QVERIFY(QFile::remove(dir.filePath(text("icon.png"))));
    QVERIFY(model.loadFromManifestFile(path));
    QVERIFY(model.icon().isNull());
}

void TestPackageLoading::saves() {
    const QTemporaryDir dir;
    PackageInfoModel model;
    QVERIFY(model.loadFromManifestContent(manifest));
    const QString path = dir.filePath(text("thé.xml"));
    QVERIFY(model.saveToManifestFile(path));
    QFile file(path);
    QVERIFY(file.open(QFile::ReadOnly));
    QCOMPARE(file.readAll(), model.saveToManifestContent());

    QFile second(dir.filePath(text("second.xml")));
    QVERIFY(model.saveToManifestFile(second));
    QVERIFY(second.open(QFile::ReadOnly));
    QCOMPARE(second.readAll(), model.saveToManifestContent());
    QVERIFY(!model.saveToManifestFile(dir.filePath(text("none/manifest.xml"))));
    QVERIFY(!model.packageInfo().errorString().empty());

    std::ostringstream fromModel;
    std::ostringstream fromRecord;
    fromModel << model;
    fromRecord << model.packageInfo();
    QCOMPARE(fromModel.str(), fromRecord.str());
    QVERIFY(fromModel.str().find("tea-time") != std::string::npos);
}

void TestPackageLoading::shippedManifestsComeBack_data() {
    QTest::addColumn<QString>("path");
    QDirIterator it(text(ZEL_SOURCE_DIR "/examples/packages"), {text("manifest.xml")}, QDir::Files,
                    QDirIterator::Subdirectories);
    QVERIFY(it.hasNext());
    while (it.hasNext()) {
        const QString path = it.next();
        QTest::newRow(qPrintable(path)) << path;
    }
}

void TestPackageLoading::shippedManifestsComeBack() {
    QFETCH(QString, path);
    QFile file(path);
    QVERIFY(file.open(QFile::ReadOnly));
    const QByteArray content = file.readAll();
    PackageInfoModel model;
    QVERIFY(model.loadFromManifestFile(path));
    QCOMPARE(model.saveToManifestContent(), content);
    model.syncRecord();
    QCOMPARE(model.saveToManifestContent(), content);
}

void TestPackageLoading::clears() {
    const auto model = anotherPackage();
    model->addRobotRequirement();
    SignalLog log(*model);
    model->clear();
    QCOMPARE(log.take().filter(text("equirement")), QStringList());
    QVERIFY(model->robotRequirements().isEmpty());
    QCOMPARE(model->packageInfo(), PackageInfoModel().packageInfo());
    // Descriptions stay until the next load, though the record has none.
    QCOMPARE(model->description(m_french), text("Infuse."));
}

void TestPackageLoading::copies() {
    QObject parent;
    const auto original = anotherPackage();
    original->setParent(&parent);
    PackageInfoModel copy(*original);
    original->setParent(nullptr);
    QVERIFY(!copy.parent());
    QCOMPARE(copy.packageInfo(), original->packageInfo());
    QCOMPARE(copy.name(m_french), text("Thé"));
    QCOMPARE(copy.robotRequirements().size(), 1);
    QCOMPARE(copy.behaviors().at(0)->parentPackage(), &copy);
    QCOMPARE(copy.dialogs().at(0)->parent(), static_cast<QObject *>(&copy));
    QCOMPARE(copy.services().at(0)->parent(), static_cast<QObject *>(&copy));
    copy.behaviors().at(0)->setPath(text("new"));
    QCOMPARE(original->behaviors().at(0)->path(), text("old"));
    QCOMPARE(original->packageInfo().behaviors().at(0).path(), std::string("old"));
}

void TestPackageLoading::notificationsOfAnAssignment() {
    PackageInfoModel source;
    QVERIFY(source.loadFromManifestContent(manifest));
    source.setChannel(text("c"));
    source.setDate(text("d"));
    QPixmap pixmap(4, 4);
    pixmap.fill(Qt::red);
    source.setIcon(pixmap);
    source.setOrganization(text("o"));
    source.setPath(text("p"));
    source.setTypeVersion(text("t"));
    const auto target = anotherPackage();
    SignalLog log(*target);
    *target = source;
    QCOMPARE(log.take(), lines(R"(versionUpdated(2.1.0)
                                  authorUpdated("Ines")
                                  channelUpdated("c")
                                  dateUpdated("d")
                                  iconUpdated(icon)
                                  installerUpdated("")
                                  organizationUpdated("o")
                                  pathUpdated("p")
                                  typeVersionUpdated("t")
                                  uidUpdated("tea-time")
                                  namesCleared()
                                  nameUpdated("Tea", en_US)
                                  nameUpdated("Unheard", ql_QB)
                                  languageRemoved(fr_FR)
                                  languageAdded(en_US)
                                  descriptionAdded(en_US)
                                  languageAdded(ql_QA)
                                  descriptionAdded(ql_QA)
                                  descriptionRemoved(fr_FR)
                                  descriptionRemoved(en_US)
                                  descriptionRemoved(ql_QA)
                                  descriptionAdded(en_US)
                                  descriptionAdded(ql_QA)
                                  behaviorRemoved(old)
                                  behaviorAdded(pour)
                                  dialogRemoved(old)
                                  dialogAdded(talk)
                                  serviceRemoved(old)
                                  serviceAdded(watch)
                                  descriptionUpdated("Brews.", en_US)
                                  robotRequirementAdded(TERN///2.1/)
                                  robotRequirementAdded(TERN///2.1/)
                                  brioRequirementAdded(2.5/3.0))"));
    QCOMPARE(target->packageInfo(), source.packageInfo());
    QCOMPARE(target->description(m_french), text("Infuse."));
    QCOMPARE(target->saveToManifestContent(), source.saveToManifestContent());
}

void TestPackageLoading::assigningTwice() {
    PackageInfoModel source;
    QVERIFY(source.loadFromManifestContent(manifest));
    PackageInfoModel target;
    target = source;
    target = source;
    QCOMPARE(target.behaviors().size(), 1);
    QCOMPARE(target.dialogs().size(), 1);
    QCOMPARE(target.services().size(), 1);
    QCOMPARE(target.robotRequirements().size(), 2);
    QCOMPARE(target.packageInfo(), source.packageInfo());
}

void TestPackageLoading::selfAssignment() {
    const auto model = anotherPackage();
    const Tano::PackageInfo before = model->packageInfo();
    SignalLog log(*model);
    PackageInfoModel &self = *model;
    *model = self;
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(model->packageInfo(), before);
}

void TestPackageLoading::editsAfterAnAssignment() {
    PackageInfoModel source;
    QVERIFY(source.loadFromManifestContent(manifest));
    source.behaviors().at(0)->insertTag(text("late"), m_english, 0);
    PackageInfoModel target(source);
    // The record is the source's, whose behavior has not been told of the insertion yet.
    QVERIFY(target.packageInfo().behaviors().at(0).languagesToTags().count("en_US") == 0);
    target.addBehavior(text("second"));
    QCOMPARE(target.packageInfo().behaviors().size(), size_t(2));
    QCOMPARE(target.packageInfo().behaviors().at(0), target.behaviors().at(0)->toBehaviorInfo());
    target.addBrioRequirement();
    QCOMPARE(target.packageInfo().brioRequirements().size(), size_t(2));
}

void TestPackageLoading::receiversOfAnAssignment() {
    PackageInfoModel source;
    QVERIFY(source.loadFromManifestContent(manifest));
    source.addBehavior(text("second"));
    PackageInfoModel target;
    connect(&target, &PackageInfoModel::behaviorAdded, this, [&] { source.clearBehaviors(); });
    connect(&target, &PackageInfoModel::nameUpdated, this, [&] { source.clearNames(); });
    target = source;
    QCOMPARE(target.names().size(), size_t(2));
    QCOMPARE(target.behaviors().size(), 1);
}

void TestPackageLoading::defaultIcon() {
    const QIcon icon = PackageInfoModel::defaultIcon();
    QVERIFY(!icon.pixmap(16, 16).isNull());
    QCOMPARE(PackageInfoModel::defaultIcon().cacheKey(), icon.cacheKey());
}

QTEST_MAIN(TestPackageLoading)
#include "tst_package_loading.moc"
