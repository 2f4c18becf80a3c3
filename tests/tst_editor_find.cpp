#include "models/matches_model.h"
#include "window/find_panel.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

using namespace Editor;

class TestEditorFind : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_document = std::make_unique<Document>();
        QVERIFY(m_document->open(
            QStringLiteral(ZEL_SOURCE_DIR "/examples/packages/small/manifest.xml")));
        m_panel = std::make_unique<FindPanel>(*m_document);
        m_panel->show();
        QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
        m_panel->start();
    }
    void cleanup() {
        m_panel.reset();
        m_document.reset();
    }

    void findsAndShows() {
        find("wave");
        QCOMPARE(m_panel->found().rowCount(), 4); // uid, both names, and the description
        QSignalSpy wanted(m_panel.get(), &FindPanel::fieldWanted);
        QTest::keyClick(text(), Qt::Key_Return);
        m_panel->showNext();
        m_panel->showPrevious();
        m_panel->showPrevious(); // wraps around
        QStringList paths;
        for (const auto &each : wanted)
            paths += each.first().toString();
        QCOMPARE(paths,
                 (QStringList{QStringLiteral("uid"), QStringLiteral("names[en_US]"),
                              QStringLiteral("uid"), QStringLiteral("behaviors[.].names[en_US]")}));
        find("nowhere");
        QCOMPARE(m_panel->found().rowCount(), 0);
        QCOMPARE(summary(), QStringLiteral("Not found."));
        m_panel->showNext();
        QCOMPARE(wanted.size(), 4);
    }

    void followsEdits() {
        find("wave");
        m_document->edit({{Zel::PackageModel::Edit::Action::Set, Tano::FieldPath().field("author"),
                           QStringLiteral("Wave")}},
                         QStringLiteral("Edit"));
        settle();
        QCOMPARE(m_panel->found().rowCount(), 5);
        m_document->undoStack()->undo();
        settle();
        QCOMPARE(m_panel->found().rowCount(), 4);
    }

    void replaces() {
        find("wave");
        replacement()->setText(QStringLiteral("bow"));
        m_panel->showNext();
        m_panel->showNext(); // the package's name
        QTest::mouseClick(button("Replace"), Qt::LeftButton);
        settle();
        QCOMPARE(name(), QStringLiteral("Morning bow"));
        QCOMPARE(m_panel->found().rowCount(), 3);
        QVERIFY(summary().startsWith(QStringLiteral("Replaced: 1.")));
        QTest::mouseClick(button("Replace All"), Qt::LeftButton);
        settle();
        QCOMPARE(m_panel->found().rowCount(), 0);
        QCOMPARE(m_document->undoStack()->count(), 2);
        m_document->undoStack()->undo();
        m_document->undoStack()->undo();
        QCOMPARE(name(), QStringLiteral("Morning wave"));
    }

    void saysWhatIsNotPossible() {
        find("en_US");
        QVERIFY(m_panel->found().rowCount() > 0);
        QTest::mouseClick(button("Replace All"), Qt::LeftButton);
        QVERIFY(summary().contains(QStringLiteral("not possible: 2.")));
        QVERIFY(!m_document->isModified());

        QTest::mouseClick(m_panel->findChildren<QCheckBox *>().last(), Qt::LeftButton, {}, {5, 5});
        find("(");
        QVERIFY(!summary().isEmpty());
        QVERIFY(!button("Replace All")->isEnabled());
    }

    void hiddenPanelDoesNothing() {
        m_panel->hide();
        text()->setText(QStringLiteral("wave"));
        QVERIFY(!m_panel->isSearching());
        m_panel->show();
        settle();
        QCOMPARE(m_panel->found().rowCount(), 4);
    }

private:
    void settle() { QTRY_VERIFY(!m_panel->isSearching()); }
    void find(const char *what) {
        text()->setText(QString::fromUtf8(what));
        settle();
    }
    QLineEdit *text() const { return m_panel->findChildren<QLineEdit *>().at(0); }
    QLineEdit *replacement() const { return m_panel->findChildren<QLineEdit *>().at(1); }
    QString summary() const { return m_panel->findChild<QLabel *>()->text(); }
    QString name() const {
        return m_document->package()->name(Zel::robotLanguage(QStringLiteral("en_US")));
    }
    QPushButton *button(const char *title) const {
        for (auto *each : m_panel->findChildren<QPushButton *>()) {
            if (each->text() == QString::fromUtf8(title))
                return each;
        }
        return nullptr;
    }

    std::unique_ptr<Document> m_document;
    std::unique_ptr<FindPanel> m_panel;
};

QTEST_MAIN(TestEditorFind)
#include "tst_editor_find.moc"
