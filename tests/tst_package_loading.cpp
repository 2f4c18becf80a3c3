#include "signal_log.h"
#include "text.h"
#include "warning_guard.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <sstream>
#include <sys/stat.h>

using namespace Zel;

namespace {

const QByteArray manifest = testData(text("transcripts/tea-time.xml"));

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

} // namespace

class TestPackageLoading : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_warnings.watch(); }
    void cleanup() { QCOMPARE(m_warnings.take(), QStringList()); }

    void unknownLanguagesAreKept();
    void contentEndsAtNul();
    void loadsFiles();
    void iconBesideTheManifest();
    void rejectedIcons();
    void saves();
    void shippedManifestsComeBack();
    void copies();
    void receiversOfAnAssignment();
    void defaultIcon();

private:
    WarningGuard m_warnings;
    const RobotLanguage m_english = language("en_US");
};

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

    QVERIFY(QFile::rename(dir.filePath(text("icon.png")), dir.filePath(text("other.png"))));
    QVERIFY(model.loadFromManifestFile(path));
    QVERIFY(model.icon().isNull());

    QVERIFY(QFile::link(text("other.png"), dir.filePath(text("icon.png"))));
    QVERIFY(model.loadFromManifestFile(path));
    QVERIFY(!model.icon().isNull());
}

void TestPackageLoading::rejectedIcons() {
    const QTemporaryDir dir;
    const QString path = dir.filePath(text("manifest.xml"));
    const QString icon = dir.filePath(text("icon.png"));
    writeFile(path, manifest);
    const struct {
        const char *reason;
        std::function<void()> create;
    } rows[] = {
        {"it is not a PNG image",
         [&] {
             writeFile(icon, "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9999\" "
                             "height=\"9999\"><rect width=\"9\" height=\"9\"/></svg>");
         }},
        {"it is not a regular file", [&] { QCOMPARE(mkfifo(qPrintable(icon), 0600), 0); }},
        {"it is not a regular file", [&] { QVERIFY(QFile::link(text("/dev/zero"), icon)); }},
        {"its 4097 x 1 pixels are more than 4096 x 4096",
         [&] { QVERIFY(QImage(4097, 1, QImage::Format_Mono).save(icon)); }},
        {"it is larger than 16777216 bytes",
         [&] {
             writeIcon(icon, Qt::red);
             QVERIFY(QFile::resize(icon, 16777217));
         }},
    };
    for (const auto &row : rows) {
        row.create();
        PackageInfoModel model;
        QVERIFY(model.loadFromManifestFile(path));
        QVERIFY(model.icon().isNull());
        QCOMPARE(m_warnings.take(),
                 QStringList(
                     text("loadFromManifestFile: Ignoring %1: %2.").arg(icon, text(row.reason))));
        QVERIFY(QFile::remove(icon));
    }
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

void TestPackageLoading::shippedManifestsComeBack() {
    const QDir samples(text(ZEL_SOURCE_DIR "/examples/packages"));
    const QStringList names = samples.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QVERIFY(!names.isEmpty());
    for (const QString &name : names) {
        QFile file(samples.filePath(name % text("/manifest.xml")));
        QVERIFY2(file.open(QFile::ReadOnly), qPrintable(name));
        PackageInfoModel model;
        QVERIFY2(model.loadFromManifestFile(file.fileName()), qPrintable(name));
        model.syncRecord();
        QCOMPARE(model.saveToManifestContent(), file.readAll());
        // The icon of the faulty sample is invalid.
        QCOMPARE(m_warnings.take().isEmpty(), name != text("faulty"));
    }
}

void TestPackageLoading::copies() {
    QObject parent;
    auto *original = new PackageInfoModel(&parent);
    QVERIFY(original->loadFromManifestContent(manifest));
    PackageInfoModel copy(*original);
    QVERIFY(!copy.parent());
    copy.behaviors().at(0)->setPath(text("new"));
    QCOMPARE(original->behaviors().at(0)->path(), text("pour"));
    QCOMPARE(original->packageInfo().behaviors().at(0).path(), std::string("pour"));
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
    QCOMPARE(target.behaviors().size(), 2);
}

void TestPackageLoading::defaultIcon() {
    const QIcon icon = PackageInfoModel::defaultIcon();
    QVERIFY(!icon.pixmap(16, 16).isNull());
    QCOMPARE(PackageInfoModel::defaultIcon().cacheKey(), icon.cacheKey());
}

QTEST_MAIN(TestPackageLoading)
#include "tst_package_loading.moc"
