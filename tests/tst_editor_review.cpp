#include "document/field_edits.h"
#include "pages/review_page.h"
#include "widgets/xml_view.h"

#include <tano/kept_content.h>

#include <QListView>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>

using namespace Editor;
using Tano::FieldPath;

class TestEditorReview : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<QTemporaryDir>();
        m_manifest = m_folder->filePath(QStringLiteral("manifest.xml"));
        QVERIFY(QFile::copy(QStringLiteral(ZEL_SOURCE_DIR "/examples/packages/small/manifest.xml"),
                            m_manifest));
        m_document = std::make_unique<Document>();
        QVERIFY(m_document->open(m_manifest));
        m_page = std::make_unique<ReviewPage>(*m_document);
        m_page->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_page.get()));
    }
    void cleanup() {
        m_page.reset();
        m_document.reset();
    }

    void changes() {
        QCOMPARE(lines(), QStringList(QStringLiteral("Nothing has changed.")));
        set("author", "Ada");
        set("names[fr_FR]", "Salut");
        QTRY_COMPARE(lines().size(), 2);
        QCOMPARE(lines().first(), QStringLiteral("Author changed from \"Yuki Tanaka\" to \"Ada\""));
        QSignalSpy wanted(m_page.get(), &ReviewPage::fieldWanted);
        QListView *view = list("Changes");
        Q_EMIT view->activated(view->model()->index(1, 0));
        QCOMPARE(wanted.first().first().toString(), QStringLiteral("names[fr_FR]"));
        QVERIFY(m_document->save(m_manifest));
        QTRY_COMPARE(lines(), QStringList(QStringLiteral("Nothing has changed.")));

        const auto record = Tano::withComment(m_document->package()->packageInfo(),
                                              FieldPath().field("author"), " who ");
        m_document->edit({{Zel::PackageModel::Edit::Action::Set, {}, record}});
        QTRY_COMPARE(lines(), QStringList(QStringLiteral("\"<!-- who -->\" added")));
    }

    void xmlAtTheField_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("line");
        QTest::newRow("author") << "author"
                                << "  <author>Yuki Tanaka</author>";
        QTest::newRow("sentence") << "behaviors[.].triggerSentences[fr_FR][0]"
                                  << "      <triggerSentence>bonjour</triggerSentence>";
        QTest::newRow("missing") << "behaviors[.].descriptions[fr_FR]"
                                 << "    <texts language=\"fr_FR\">";
    }
    void xmlAtTheField() {
        QFETCH(QString, path);
        auto *view = m_page->findChild<XmlView *>();
        view->showField(*FieldPath::parse(Zel::toUtf8(path)));
        QTEST(view->textCursor().block().text(), "line");
    }

    // Shows a part immediately if the whole text would take seconds.
    void largeXml() {
        QString description;
        for (int i = 0; i < 200000; ++i)
            description += QStringLiteral("line %1\n").arg(i);
        set("descriptions[en_US]", description.toUtf8().constData());
        auto *view = m_page->findChild<XmlView *>();
        view->showField(*FieldPath::parse("behaviors[.].names[en_US]"));
        QCOMPARE(view->textCursor().block().text(), QStringLiteral("      <name>Wave</name>"));
        QVERIFY(view->document()->blockCount() < 1100);
        QVERIFY(view->document()->firstBlock().text() == QStringLiteral("…"));
    }

    void publication() {
        set("names[it_IT]", "Ciao");
        set("behaviors[.].loadingResponses[en_US][0]", "<speak>Hello <break/>there</speak>");
        m_page->findChild<QTabWidget *>()->setCurrentIndex(2);
        const QStringList expected{
            QStringLiteral("Name in Italian (Italy) removed: \"Ciao\""),
            QStringLiteral("Loading response 1 of “.” in English (United States) changed from "
                           "\"<speak>Hello <break/>there</speak>\" to \"Hello there\"")};
        QTRY_COMPARE(lines("Publication"), expected);
    }

    void mergesWithTheFile() {
        set("author", "Ada");
        rewrite("<name>Wave</name>", "<name>Bow</name>");
        const auto conflicts = m_document->mergeWithFile();
        QVERIFY(conflicts && conflicts->isEmpty());
        QCOMPARE(value("author"), QStringLiteral("Ada"));
        QCOMPARE(value("behaviors[.].names[en_US]"), QStringLiteral("Bow"));
        QVERIFY(m_document->isModified());
        QTRY_COMPARE(lines().size(), 1); // compared with the file
        m_document->undoStack()->undo();
        QCOMPARE(value("behaviors[.].names[en_US]"), QStringLiteral("Wave"));
        QCOMPARE(value("author"), QStringLiteral("Ada"));
        m_document->undoStack()->redo();
        QVERIFY(m_document->save(m_manifest));
    }

    void reportsConflicts() {
        set("behaviors[.].names[en_US]", "Salute");
        rewrite("<name>Wave</name>", "<name>Bow</name>");
        const auto conflicts = m_document->mergeWithFile();
        QVERIFY(conflicts);
        QCOMPARE(conflicts->size(), 1);
        QCOMPARE(value("behaviors[.].names[en_US]"), QStringLiteral("Salute"));
        const auto &issues = m_document->issues();
        QVERIFY(std::any_of(issues.begin(), issues.end(), [](const auto &issue) {
            return issue.id == QLatin1String("merge-conflict");
        }));
        rewrite("<package", "<pack");
        QVERIFY(!m_document->mergeWithFile());
        QVERIFY(!m_document->errorString().isEmpty());
    }

private:
    QListView *list(const char *name) const {
        for (auto *view : m_page->findChildren<QListView *>()) {
            if (view->accessibleName() == QLatin1String(name))
                return view;
        }
        return nullptr;
    }
    QStringList lines(const char *name = "Changes") const {
        const auto *model = list(name)->model();
        QStringList all;
        for (int i = 0; i < model->rowCount(); ++i)
            all += model->index(i, 0).data().toString();
        return all;
    }
    void set(const char *path, const char *text) {
        m_document->edit({setText(*FieldPath::parse(path), QString::fromUtf8(text))});
    }
    QString value(const char *path) const {
        return fieldText(m_document->package(), *FieldPath::parse(path));
    }
    void rewrite(const char *from, const char *to) {
        QFile file(m_manifest);
        QVERIFY(file.open(QIODevice::ReadWrite));
        const QByteArray content = file.readAll().replace(from, to);
        file.resize(0);
        file.seek(0);
        file.write(content);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_manifest;
    std::unique_ptr<Document> m_document;
    std::unique_ptr<ReviewPage> m_page;
};

QTEST_MAIN(TestEditorReview)
#include "tst_editor_review.moc"
