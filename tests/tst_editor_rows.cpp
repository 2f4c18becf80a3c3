#include "document/row_edits.h"
#include "editor_test.h"
#include "table_file.h"
#include "widgets/row_actions.h"

#include <packagemodel/package_json.h>

#include <QAbstractItemView>
#include <QAction>
#include <QClipboard>
#include <QMenuBar>
#include <QTableView>

#include <optional>

using Zel::PackageModel::FieldValue;
using Entries = QVector<FieldValue>;

class TestEditorRows : public QObject, EditorTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare(); }
    void init() { openAgain(); }
    void cleanup() { closeWindow(); }

    // Lists of three entries. A list without duplicates does not allow them.
    void keyboard_data() { addRowsOf("editor/row-keys.json"); }
    void keyboard() {
        QFETCH(QString, list);
        QFETCH(QString, duplicates);
        const bool isOrdered = !list.endsWith(QStringLiteral("permissions"));
        const Entries before = entries(list);
        QCOMPARE(before.size(), 3);
        const QByteArray bytes = manifest();
        const auto undo = [&] {
            QCOMPARE(stack()->count(), 1);
            stack()->undo();
            QCOMPARE(manifest(), bytes);
            stack()->clear();
        };

        selectTwo(list);
        press(Qt::Key_C, Qt::ControlModifier);
        QTEST(clipboard()->text(), "lines");
        if (!duplicates.isEmpty()) {
            press(Qt::Key_D, Qt::ControlModifier);
            QCOMPARE(entries(list).mid(0, 2), before.mid(0, 2));
            QCOMPARE(entries(list).at(4), before.at(2));
            QCOMPARE(selectedRows(), (QList<int>{2, 3}));
            press(Qt::Key_C, Qt::ControlModifier);
            QCOMPARE(clipboard()->text(), duplicates);
            undo();
        }
        selectTwo(list);
        press(Qt::Key_Down, Qt::AltModifier);
        if (isOrdered) {
            QCOMPARE(entries(list), (Entries{before.at(2), before.at(0), before.at(1)}));
            QCOMPARE(selectedRows(), (QList<int>{1, 2}));
            press(Qt::Key_Down, Qt::AltModifier);
            undo();
            selectLast(list);
            press(Qt::Key_Up, Qt::AltModifier);
            QCOMPARE(entries(list), (Entries{before.at(0), before.at(2), before.at(1)}));
            QCOMPARE(selectedRows(), QList<int>{1});
            undo();
        }
        QCOMPARE(stack()->count(), 0);

        selectTwo(list);
        press(Qt::Key_Delete);
        QCOMPARE(entries(list), before.mid(2));
        undo();
        selectTwo(list);
        press(Qt::Key_X, Qt::ControlModifier);
        if (duplicates.isEmpty())
            press(Qt::Key_Delete);
        QCOMPARE(entries(list), before.mid(2));
        if (duplicates.isEmpty())
            return;

        // Simulates another window.
        openAgain();
        selectTwo(list);
        press(Qt::Key_Delete);
        stack()->clear();
        press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(entries(list), (Entries{before.at(2), before.at(0), before.at(1)}));
        QCOMPARE(selectedRows(), (QList<int>{1, 2}));
        QCOMPARE(stack()->count(), 1);
    }

    void pastesBesideOthers_data() { addRowsOf("editor/pasted-rows.json"); }
    void pastesBesideOthers() {
        QFETCH(QString, text);
        QFETCH(QString, list);
        QFETCH(QString, refusal);
        if (text == QStringLiteral("two behaviors")) {
            selectTwo(QStringLiteral("behaviors"));
            press(Qt::Key_C, Qt::ControlModifier);
        } else {
            clipboard()->setText(text);
        }
        selectTwo(list);
        std::optional<Answer> answer;
        if (!refusal.isEmpty())
            answer.emplace(QMessageBox::Ok);
        press(Qt::Key_V, Qt::ControlModifier);
        QStringList keys;
        for (const FieldValue &entry : entries(list))
            keys += Editor::entryKey(entry);
        QTEST(keys.join(u' '), "keys");
        QCOMPARE(stack()->count(), answer ? 0 : 1);
        if (answer)
            QTRY_VERIFY2(answer->text.contains(refusal), qPrintable(answer->text));
    }

    void movesBehaviorsThatAreAllShown() {
        const QString list = QStringLiteral("behaviors");
        const Entries before = entries(list);
        selectTwo(list);
        auto *tree = view<QTreeView>("Behaviors");
        line("Find a behavior")->setText(QStringLiteral("a"));
        tree->setFocus();
        press(Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(entries(list), before);
        press(Qt::Key_C, Qt::ControlModifier);
        line("Find a behavior")->setText(QStringLiteral("First"));
        tree->setFocus();
        press(Qt::Key_V, Qt::ControlModifier); // shown by its path and name
        QCOMPARE(entries(list).size(), 4);
        QCOMPARE(selectedRows(), QList<int>{1});
        line("Find a behavior")->setText(QStringLiteral("irst"));
        clipboard()->setMimeData(Editor::newRowData(path(list), before.mid(1, 1), {}));
        tree->setFocus();
        press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(line("Find a behavior")->text(), QString()); // the filter hid the new row
        QCOMPARE(selectedRows(), QList<int>{2});
    }

    void drag_data() {
        QTest::addColumn<QString>("list");
        QTest::addColumn<int>("target");
        QTest::addColumn<bool>("isBelow"); // below the middle of the target
        QTest::addColumn<QList<int>>("expected");
        const QString sentences = QStringLiteral("behaviors[a].triggerSentences[en_US]");
        QTest::newRow("to the end") << sentences << 2 << true << QList<int>{2, 0, 1};
        QTest::newRow("into themselves") << sentences << 1 << false << QList<int>{0, 1, 2};
        QTest::newRow("beside") << "services" << 2 << false << QList<int>{0, 1, 2};
        QTest::newRow("below all") << "behaviors" << -1 << false << QList<int>{2, 0, 1};
        QTest::newRow("no order") << "behaviors[a].permissions" << 2 << true << QList<int>{0, 1, 2};
        QTest::newRow("below the supported")
            << "supportedLanguages" << 3 << true << QList<int>{2, 0, 1};
    }
    void drag() {
        QFETCH(QString, list);
        QFETCH(int, target);
        QFETCH(bool, isBelow);
        QFETCH(QList<int>, expected);
        const Entries before = entries(list);
        selectTwo(list);
        auto *view = qobject_cast<QAbstractItemView *>(QApplication::focusWidget());
        const QRect rect = view->visualRect(view->model()->index(target, 0));
        const QPoint point = target < 0 ? view->viewport()->rect().bottomLeft() - QPoint(-9, 4)
                                        : rect.center() + QPoint(0, isBelow ? 4 : -4);
        view->findChild<Editor::RowActions *>()->dropAt(point);
        Entries wanted;
        for (const int row : expected)
            wanted += before.at(row);
        QCOMPARE(entries(list), wanted);
        QCOMPARE(stack()->count(), wanted == before ? 0 : 1);
    }

    // The context menu lists every action with its shortcut.
    void contextMenu() {
        selectTwo(QStringLiteral("services"));
        QStringList keys;
        for (const QAction *action : QApplication::focusWidget()->actions())
            keys += action->isSeparator() ? QStringLiteral("-") : action->shortcut().toString();
        QCOMPARE(keys.join(u' '),
                 QStringLiteral("Ctrl+X Ctrl+C Ctrl+V Ctrl+D Del - Alt+Up Alt+Down"));
        QCOMPARE(QApplication::focusWidget()->contextMenuPolicy(), Qt::ActionsContextMenu);
    }

    // The Edit menu has the actions of the list that has the focus, also while the menu bar has it.
    void editMenu() {
        const QMenu *edit = m_window->menuBar()->actions().at(1)->menu();
        const auto names = [edit] {
            QStringList names;
            for (const QAction *action : edit->actions())
                names += action->text().remove(u'&');
            return names.join(u' ');
        };
        selectTwo(QStringLiteral("services"));
        m_window->menuBar()->setFocus();
        QVERIFY2(
            names().endsWith(QStringLiteral("Cut Copy Paste Duplicate Delete  Move Up Move Down")),
            qPrintable(names()));
        for (QAction *action : edit->actions()) {
            if (isSame(action->text(), "Move Down"))
                action->trigger();
        }
        QCOMPARE(Editor::entryKey(entries(QStringLiteral("services")).at(1)),
                 QStringLiteral("clock"));
        m_window->showField(QStringLiteral("services[lamp]"));
        press(Qt::Key_F2); // the cell has its own
        QVERIFY2(!names().contains(QStringLiteral("Cut")), qPrintable(names()));
    }

    void propertiesOfAService() {
        const QByteArray before = manifest();
        m_window->showField(QStringLiteral("services[clock].properties[nice]"));
        type(QStringLiteral("5"));
        press(Qt::Key_Return);
        QTest::mouseClick(button("Add Property"), Qt::LeftButton);
        type(QStringLiteral("user"));
        press(Qt::Key_Return);
        QTRY_COMPARE(properties(), QStringLiteral("nice=5 restart=always user="));
        auto *table = view<QTableView>("Properties");
        QCOMPARE(focus(), table);
        QCOMPARE(table->currentIndex().data().toString(), QStringLiteral("user"));
        // A taken name is refused, and the cell editor may be gone before the dialog closes.
        press(Qt::Key_F2);
        type(QStringLiteral("nice"));
        QString refusal;
        const Answer answer(std::function<void(QMessageBox *)>([&](QMessageBox *box) {
            refusal = box->text();
            stack()->undo();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            box->accept();
        }));
        table->setFocus();
        QTRY_VERIFY(refusal.contains(QStringLiteral("“nice”")));
        stack()->redo();
        m_window->showField(QStringLiteral("services[clock].properties[nice]"));
        press(Qt::Key_Delete);
        QCOMPARE(properties(), QStringLiteral("restart=always user="));
        press(Qt::Key_A, Qt::ControlModifier);
        press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(clipboard()->text(), QStringLiteral("restart\talways\nuser\t"));
        const int steps = stack()->count();
        press(Qt::Key_Delete);
        QCOMPARE(properties(), QString());
        QCOMPARE(stack()->count(), steps + 1);
        while (stack()->canUndo())
            stack()->undo();
        QCOMPARE(manifest(), before);
        m_window->showField(QStringLiteral("services[radio]"));
        QCOMPARE(view<QTableView>("Properties")->model()->rowCount(), 0);
        QVERIFY(m_window->openFile(QStringLiteral(ZEL_TEST_DATA "/editor/rows/manifest.xml")));
        QVERIFY(!button("Add Property")->isEnabled());
    }

private:
    QString properties() {
        QStringList texts;
        const auto all = m_window->document().package()->service(QStringLiteral("clock"));
        const auto map = all->properties();
        for (auto it = map.begin(); it != map.end(); ++it)
            texts += it.key() + u'=' + it.value();
        return texts.join(u' ');
    }
    void openAgain() {
        m_window.reset();
        showWindow();
        QVERIFY(m_window->openFile(QStringLiteral(ZEL_TEST_DATA "/editor/rows/manifest.xml")));
    }
    static Tano::FieldPath path(const QString &text) {
        return *Tano::FieldPath::parse(Zel::toUtf8(text));
    }
    Entries entries(const QString &list) {
        return Zel::PackageModel::entries(m_window->document().package(), path(list));
    }
    void showItem(const QString &list, int row) {
        const auto item =
            Zel::PackageModel::itemPath(m_window->document().package(), path(list), row);
        m_window->showField(QString::fromStdString(item.toString()));
    }
    void selectTwo(const QString &list) {
        showItem(list, 0);
        press(Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(selectedRows(), (QList<int>{0, 1}));
    }
    void selectLast(const QString &list) { showItem(list, int(entries(list).size()) - 1); }
    static QList<int> selectedRows() {
        const auto *view = qobject_cast<QAbstractItemView *>(QApplication::focusWidget());
        QMap<int, int> rows;
        for (const QModelIndex &index : view->selectionModel()->selectedIndexes())
            rows.insert(index.row(), 0);
        return rows.keys();
    }
    static QClipboard *clipboard() { return QGuiApplication::clipboard(); }
};

QTEST_MAIN(TestEditorRows)
#include "tst_editor_rows.moc"
