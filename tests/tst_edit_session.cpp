#include "table_file.h"
#include "warning_guard.h"

#include <packagemodel/edit_session.h>
#include <packagemodel/package_json.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

using namespace Zel::PackageModel;

namespace {

// Runs another process that opens the manifest, stores an edit, and waits to be killed.
constexpr const char *editorMode = "--edit";

UnsavedEdits sample(const QString &fileName, const QString &author) {
    UnsavedEdits unsaved;
    unsaved.fileName = fileName;
    unsaved.digest = manifestDigest("<package/>");
    unsaved.time = QDateTime(QDate(2026, 11, 21), QTime(12, 0), Qt::UTC);
    unsaved.edits = {{Edit::Action::Set, Tano::FieldPath().field("author"), author}};
    return unsaved;
}

QByteArray sampleFile() {
    QFile file(QStringLiteral(ZEL_TEST_DATA "/fields/unsaved-edits.json"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool isSame(const UnsavedEdits &a, const UnsavedEdits &b) {
    return a.fileName == b.fileName && a.manifest == b.manifest && a.digest == b.digest &&
           a.time == b.time && a.edits == b.edits && a.icon == b.icon;
}

int runEditor(const QString &folder, const QString &manifest) {
    EditSession session(folder, manifest);
    const QString error = session.keep(sample(manifest, QStringLiteral("Ada")));
    QFile out;
    if (!error.isEmpty() || !out.open(stdout, QIODevice::WriteOnly))
        return 1;
    out.write("kept\n");
    out.close();
    for (;;)
        QThread::sleep(1);
}

} // namespace

class TestEditSession : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_guard.watch(); }
    void cleanup() { QCOMPARE(m_guard.take(), QStringList()); }

    void json() {
        const auto fromFile = unsavedEditsFromJson(sampleFile());
        QCOMPARE(fromFile.error, QString());
        QCOMPARE(fromFile.unsaved.edits.size(), 2);
        UnsavedEdits unsavedPackage = sample({}, QStringLiteral("Ada"));
        unsavedPackage.manifest = "<package uid=\"\xC3\xA9\"/>\n";
        unsavedPackage.icon = QByteArray();
        for (const UnsavedEdits &each : {fromFile.unsaved, unsavedPackage})
            QVERIFY(isSame(unsavedEditsFromJson(toJson(each)).unsaved, each));
    }

    void refusals_data() { addRowsOf("fields/refused-unsaved-edits.json"); }
    void refusals() {
        QFETCH(QString, from);
        QFETCH(QString, to);
        QString json = QString::fromUtf8(sampleFile());
        json.replace(from, to);
        const auto parsed = unsavedEditsFromJson(json.toUtf8());
        QTEST(parsed.error, "error");
        QVERIFY(parsed.unsaved.edits.isEmpty());
    }

    void oneOwner() {
        const QString manifest = newManifest();
        QFile::link(manifest, m_folder.filePath(QStringLiteral("link.xml")));
        EditSession first(state(), manifest);
        QVERIFY(!first.otherOwner() && !first.leftover());
        QCOMPARE(first.keep(sample(manifest, QStringLiteral("Ada"))), QString());
        {
            EditSession second(state(), m_folder.filePath(QStringLiteral("link.xml")));
            QVERIFY(second.otherOwner());
            QCOMPARE(second.otherOwner()->process, QCoreApplication::applicationPid());
            QCOMPARE(second.keep(sample(manifest, QStringLiteral("Eve"))), QString());
            second.discard();
            QVERIFY(!second.leftover());
        }
        QCOMPARE(leftovers(state()).size(), 0); // it is still open
        QVERIFY(isSame(*first.leftover(), sample(manifest, QStringLiteral("Ada"))));
        first.discard();
        QVERIFY(!first.leftover());
    }

    void killedEditor() {
        const QString manifest = newManifest();
        QProcess editor;
        editor.start(QCoreApplication::applicationFilePath(),
                     {QLatin1String(editorMode), state(), manifest});
        QVERIFY(editor.waitForReadyRead());
        QCOMPARE(EditSession(state(), manifest).otherOwner()->process, editor.processId());
        QCOMPARE(leftovers(state()).size(), 0);
        editor.kill();
        QVERIFY(editor.waitForFinished());

        const auto found = leftovers(state());
        QCOMPARE(found.size(), 1);
        QVERIFY(isSame(found.first().unsaved, sample(manifest, QStringLiteral("Ada"))));
        EditSession next(state(), manifest);
        QVERIFY(!next.otherOwner());
        QVERIFY(next.leftover());
        next.discard();
        QCOMPARE(leftovers(state()).size(), 0);
    }

    void locksOfKilledEditorsGo() {
        QProcess editor;
        editor.start(QCoreApplication::applicationFilePath(),
                     {QLatin1String(editorMode), state(), newManifest()});
        QVERIFY(editor.waitForReadyRead());
        editor.kill();
        QVERIFY(editor.waitForFinished());
        const QDir folder(state());
        QCOMPARE(folder.entryList({QStringLiteral("*.lock")}).size(), 1);
        for (const Leftover &each : leftovers(state()))
            EditSession::ofLeftover(state(), each.id).discard();
        QCOMPARE(folder.entryList({QStringLiteral("*.lock")}).size(), 0);
    }

    void packageWithoutFile() {
        UnsavedEdits unsaved = sample({}, QStringLiteral("Ada"));
        unsaved.manifest = "<package/>";
        UnsavedEdits later = unsaved;
        later.time = later.time.addSecs(60);
        {
            EditSession first(state());
            EditSession second(state());
            QCOMPARE(first.keep(unsaved), QString());
            QCOMPARE(second.keep(later), QString());
        }
        const auto found = leftovers(state());
        QCOMPARE(found.size(), 2);
        QVERIFY(isSame(found.first().unsaved, later)); // newest first
        for (const Leftover &each : found)
            EditSession::ofLeftover(state(), each.id).discard();
        QCOMPARE(leftovers(state()).size(), 0);
    }

    void privateFiles() {
        EditSession session(state());
        QCOMPARE(session.keep(sample({}, QStringLiteral("Ada"))), QString());
        const QDir folder(state());
        QCOMPARE(QFileInfo(state()).permissions() & 0x77, 0);
        const auto files = folder.entryInfoList({QStringLiteral("new-*.json")});
        QCOMPARE(files.size(), 1);
        QCOMPARE(files.first().permissions() & 0x77, 0);
        session.discard();
    }

    void unreadableLeftover() {
        const QString manifest = newManifest();
        {
            EditSession session(state(), manifest);
            QCOMPARE(session.keep(sample(manifest, QStringLiteral("Ada"))), QString());
        }
        const QString name = QDir(state()).entryList({QStringLiteral("*.json")}).value(0);
        QFile file(QDir(state()).filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("{");
        file.close();
        QCOMPARE(leftovers(state()).size(), 0);
        const QStringList warnings = m_guard.take();
        QCOMPARE(warnings.size(), 1);
        QVERIFY(warnings.first().contains(name) &&
                warnings.first().contains(QLatin1String("line 1")));
        QVERIFY(file.exists());
        file.remove();
    }

private:
    QString state() const { return m_folder.filePath(QStringLiteral("state")); }
    QString newManifest() {
        const QString path = m_folder.filePath(QStringLiteral("manifest.xml"));
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write("<package/>");
        return path;
    }

    QTemporaryDir m_folder;
    WarningGuard m_guard;
};

int main(int argc, char **argv) {
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String(editorMode))
        return runEditor(arguments.value(2), arguments.value(3));
    TestEditSession test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_edit_session.moc"
