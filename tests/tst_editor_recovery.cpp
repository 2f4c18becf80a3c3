#include "document/field_edits.h"
#include "document/recovery.h"
#include "window/main_window.h"

#include <QApplication>
#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace Editor;

namespace {

// A minimal window: a document and its edit session. Without end(), simulates a crash.
struct Session {
    explicit Session(const QString &folder)
        : recovery(std::make_unique<Recovery>(document, folder))
        , noticed(recovery.get(), &Recovery::noticed) {
        recovery->setDelay(std::chrono::milliseconds(0));
    }

    Document document;
    std::unique_ptr<Recovery> recovery;
    QSignalSpy noticed;
};

} // namespace

class TestEditorRecovery : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<QTemporaryDir>();
        m_manifest = m_folder->filePath(QStringLiteral("manifest.xml"));
        QVERIFY(QFile::copy(QStringLiteral(ZEL_SOURCE_DIR "/examples/packages/small/manifest.xml"),
                            m_manifest));
    }

    void keepsAndRestores() {
        crashWith({"Ada", "Eve"});
        Session next(state());
        QCOMPARE(next.recovery->leftovers().size(), 1);
        QVERIFY(next.document.open(m_manifest));
        QCOMPARE(next.noticed.size(), 1);
        QVERIFY(!next.recovery->isFileChanged());
        QCOMPARE(next.recovery->restore(), QString());
        QCOMPARE(author(next), QStringLiteral("Eve"));
        QCOMPARE(next.document.undoStack()->count(), 1);
        QVERIFY(next.document.isModified());
        QVERIFY(next.document.save(m_manifest));
        QCOMPARE(kept(), 0);
    }

    void keepsTheIcon_data() {
        QTest::addColumn<bool>("isRemoved");
        QTest::newRow("new") << false;
        QTest::newRow("removed") << true;
    }
    void keepsTheIcon() {
        QFETCH(const bool, isRemoved);
        const auto sizes = [](const Session &session) {
            return session.document.package()->icon().availableSizes();
        };
        QImage picture(3, 2, QImage::Format_ARGB32);
        picture.fill(Qt::red);
        QByteArray png;
        QBuffer buffer(&png);
        picture.save(&buffer, "PNG");
        if (isRemoved)
            picture.save(m_folder->filePath(QStringLiteral("icon.png")));
        crashWith({}, [&](Session &session) {
            session.document.setIcon(isRemoved ? QByteArray() : png);
        });
        Session next(state());
        QVERIFY(next.document.open(m_manifest));
        const auto before = sizes(next);
        QCOMPARE(next.recovery->restore(), QString());
        QCOMPARE(sizes(next), isRemoved ? QList<QSize>() : QList<QSize>{picture.size()});
        QCOMPARE(next.document.undoStack()->count(), 1);
        next.document.setIcon("not a picture");
        QCOMPARE(next.document.undoStack()->count(), 1);
        next.document.undoStack()->undo();
        QCOMPARE(sizes(next), before);
        QCOMPARE(kept(), 0);
    }

    void undoneAndSavedEditsAreNotKept() {
        Session session(state());
        QVERIFY(session.document.open(m_manifest));
        setAuthor(session, "Ada");
        QTRY_COMPARE(kept(), 1);
        session.document.undoStack()->undo();
        QCOMPARE(kept(), 0);
        setAuthor(session, "Eve");
        QTRY_COMPARE(kept(), 1);
        QVERIFY(session.document.save(m_manifest));
        QCOMPARE(kept(), 0);
        session.document.undoStack()->undo();
        QTRY_COMPARE(kept(), 1);
        session.recovery.reset();
        QCOMPARE(kept(), 0);
    }

    void changedFile() {
        crashWith({"Ada"});
        QFile file(m_manifest);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray content = file.readAll().replace("Morning", "Evening");
        file.close();
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        Session next(state());
        QVERIFY(next.document.open(m_manifest));
        QVERIFY(next.recovery->isFileChanged());
        QCOMPARE(next.recovery->restore(), QString());
        QCOMPARE(author(next), QStringLiteral("Ada"));
        QVERIFY(next.document.package()
                    ->name(Zel::Language::defaultLanguage())
                    .startsWith(QStringLiteral("Evening")));
    }

    // Nothing is offered for a file that has the edits already.
    void savedByAnotherProgram() {
        crashWith({"Ada"});
        {
            Session other(m_folder->filePath(QStringLiteral("other")));
            QVERIFY(other.document.open(m_manifest));
            setAuthor(other, "Ada");
            QVERIFY(other.document.save(m_manifest));
        }
        MainWindow window;
        window.keepEditsIn(state());
        QTimer refusal;
        connect(&refusal, &QTimer::timeout, [] {
            if (QWidget *dialog = QApplication::activeModalWidget())
                dialog->close(); // recovers
        });
        refusal.start(0);
        QVERIFY(window.openFile(m_manifest));
        QTRY_COMPARE(kept(), 0);
        QVERIFY(!window.document().isModified());
    }

    // Edits that do not fit the file stay on disk, even if the user continues editing.
    void misfitStays() {
        crashWith({"Ada"}, [](Session &session) {
            session.document.edit({setText(*Tano::FieldPath::parse("behaviors[.].names[en_US]"),
                                           QStringLiteral("Salute"))});
        });
        {
            Session other(m_folder->filePath(QStringLiteral("other")));
            QVERIFY(other.document.open(m_manifest));
            other.document.edit(
                {removed(other.document.package(), Tano::FieldPath().field("behaviors"), 0)});
            QVERIFY(other.document.save(m_manifest));
        }
        Session next(state());
        QVERIFY(next.document.open(m_manifest));
        QVERIFY(!next.recovery->restore().isEmpty());
        QVERIFY(!next.document.isModified());
        setAuthor(next, "Eve");
        QTRY_COMPARE(kept(), 2);
        QVERIFY(next.document.save(m_manifest));
        QCOMPARE(kept(), 1);
        next.recovery->dismiss();
        QCOMPARE(kept(), 0);
    }

    void packageWithoutFile_data() {
        QTest::addColumn<bool>("isEmpty");
        QTest::newRow("from a template") << false;
        QTest::newRow("empty") << true;
    }
    void packageWithoutFile() {
        QFETCH(const bool, isEmpty);
        QFile manifest(m_manifest);
        QVERIFY(manifest.open(QIODevice::ReadOnly));
        auto *session = new Session(state());
        QVERIFY(isEmpty || session->document.openTemplate(manifest.readAll()));
        setAuthor(*session, "Ada");
        QTRY_COMPARE(kept(), 1);
        crash(session);
        Session next(state());
        const auto leftovers = next.recovery->leftovers();
        QCOMPARE(leftovers.size(), 1);
        QCOMPARE(next.recovery->open(leftovers.first()), QString());
        QCOMPARE(next.noticed.size(), 1);
        QCOMPARE(next.recovery->restore(), QString());
        QCOMPARE(author(next), QStringLiteral("Ada"));
        QVERIFY(next.document.save(m_folder->filePath(QStringLiteral("saved.xml"))));
        QCOMPARE(kept(), 0);
    }

    void secondWindow() {
        Session first(state());
        QVERIFY(first.document.open(m_manifest));
        Session second(state());
        QVERIFY(second.document.open(m_manifest));
        QCOMPARE(first.noticed.size(), 0);
        QCOMPARE(second.noticed.size(), 1);
        QVERIFY(second.recovery->otherOwner());
        QVERIFY(first.document.open(m_manifest)); // in the same window
        QVERIFY(!first.recovery->otherOwner());
    }

private:
    // Leaves edits behind like a killed process.
    void crashWith(std::initializer_list<const char *> authors,
                   const std::function<void(Session &)> &also = {}) {
        auto *session = new Session(state());
        QVERIFY(session->document.open(m_manifest));
        for (const char *each : authors)
            setAuthor(*session, each);
        if (also)
            also(*session);
        QTRY_COMPARE(kept(), 1);
        crash(session);
    }
    void crash(Session *session) {
        const QDir folder(state());
        for (const QString &name : folder.entryList({QStringLiteral("*.json")}))
            QVERIFY(QFile::copy(folder.filePath(name), m_folder->filePath(name)));
        delete session;
        for (const QString &name : QDir(m_folder->path()).entryList({QStringLiteral("*.json")}))
            QVERIFY(QFile::rename(m_folder->filePath(name), folder.filePath(name)));
    }
    static void setAuthor(Session &session, const char *name) {
        session.document.edit(
            {setText(Tano::FieldPath().field("author"), QString::fromUtf8(name))});
    }
    static QString author(const Session &session) { return session.document.package()->author(); }
    QString state() const { return m_folder->filePath(QStringLiteral("state")); }
    int kept() const { return int(QDir(state()).entryList({QStringLiteral("*.json")}).size()); }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_manifest;
};

QTEST_MAIN(TestEditorRecovery)
#include "tst_editor_recovery.moc"
