#include "document/field_edits.h"
#include "editor_test.h"
#include "table_file.h"
#include "widgets/field_note.h"
#include "widgets/marks.h"

#include <QAccessible>
#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTableView>
#include <QUndoView>

using namespace Editor;
using Tano::FieldPath;
using Zel::PackageModel::Edit;

Q_DECLARE_METATYPE(std::function<void()>)

/// Tests how typed text reaches the package, is refused, and is undone.
class TestEditorTyping : public QObject, private EditorTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare(); }
    void init() { showWindow(); }
    void cleanup() { closeWindow(); }

    // Also in a package without behaviors, whose list has no selection.
    void aRunIsOneStep() {
        m_window->document().edit({appended(path("supportedLanguages"), QStringLiteral("en_US"))});
        const int before = stack()->count();
        field("&Author:")->setFocus();
        type(QStringLiteral("Ada"));
        QCOMPARE(stack()->count(), before + 1);
        QCOMPARE(stack()->undoText(), QStringLiteral("Set author"));

        const auto *table = openCell(1, "Languages and texts", 0, 3);
        for (const char *text : {"a", "b", "c"}) {
            type(QLatin1String(text));
            QCOMPARE(table->currentIndex().data().toString(), line(focus())->text());
            QCOMPARE(stack()->count(), before + 2);
        }
        press(Qt::Key_Escape);
        QCOMPARE(stack()->count(), before + 1);
        QVERIFY(!stack()->canRedo());
        QVERIFY(!manifest().contains("<name>"));
    }

    void runsEnd() {
        QVERIFY(m_window->openFile(copyOf("small")));
        m_window->document().setTypingPause(std::chrono::milliseconds(0));
        QLineEdit *author = field("&Author:");
        author->setFocus();
        replaceText(QStringLiteral("Ada"));
        QCoreApplication::processEvents(); // a pause
        const int before = stack()->count();
        type(QStringLiteral("!"));
        QCOMPARE(stack()->count(), before + 1);

        m_window->document().setTypingPause(std::chrono::hours(1));
        m_window->showPage(1);
        auto *description = visible<QPlainTextEdit>();
        description->setFocus();
        press(Qt::Key_A, Qt::ControlModifier);
        type(QStringLiteral("one"));
        press(Qt::Key_Return);
        type(QStringLiteral("two"));
        QCOMPARE(stack()->count(), before + 3);
        stack()->undo();
        QCOMPARE(description->toPlainText(), QStringLiteral("one\n"));
    }

    // Leaving a cell with Escape restores it, however often the user paused.
    void escapeTakesAllBack() {
        QVERIFY(m_window->openFile(copyOf("small")));
        const QByteArray before = manifest();
        m_window->document().setTypingPause(std::chrono::milliseconds(0));
        openCell(1, "Languages and texts", 1, 3);
        for (int i = 0; i < 3; ++i) {
            type(QStringLiteral("x"));
            QCoreApplication::processEvents();
        }
        press(Qt::Key_Escape);
        QCOMPARE(manifest(), before);
    }

    void renamesAreRunsToo() {
        QVERIFY(m_window->openFile(copyOf("ten-languages")));
        const QByteArray before = manifest();
        m_window->showPage(3);
        line("Find a behavior")->setFocus();
        type(QStringLiteral("stories/b")); // this behavior no longer matches the filter
        field("&Path:")->setFocus();
        const auto *behavior = m_window->document().package()->behavior(field("&Path:")->text());
        replaceText(QStringLiteral("fable"));
        QCOMPARE(behavior->path(), QStringLiteral("fable"));
        m_window->showPage(4);
        field("&Topic:")->setFocus();
        replaceText(QStringLiteral("talk"));
        openCell(5, "Services", 0, 0);
        type(QStringLiteral("clock"));
        QCOMPARE(line(focus())->text(), QStringLiteral("clock"));
        QCOMPARE(m_window->document().package()->services().at(0)->name(), QStringLiteral("clock"));
        QCOMPARE(stack()->count(), 3);
        for (int i = 0; i < 3; ++i)
            stack()->undo();
        QCOMPARE(manifest(), before);
    }

    void refusedTexts_data() { addRowsOf("editor/refused-texts.json"); }
    // The package is unchanged by the run, and the reason is shown.
    void refusedTexts() {
        QFETCH(int, page);
        QFETCH(QString, label);
        QFETCH(QString, text);
        QFETCH(QString, reason);
        QVERIFY(m_window->openFile(copyOf("ten-languages")));
        const QByteArray before = manifest();
        m_window->showPage(page);
        const QByteArray name = label.toUtf8();
        if (label.startsWith(u'&')) {
            field(name.constData())->setFocus();
            press(Qt::Key_A, Qt::ControlModifier);
        } else {
            openCell(page, name.constData(), 0, 1);
        }
        press(Qt::Key_Backspace);
        if (text.contains(u'\v'))
            paste(text.toUtf8());
        else
            type(text);
        const QWidget *edit = focus();
        QCOMPARE(stack()->count(), 0);
        QVERIFY(!stack()->canRedo());
        QCOMPARE(manifest(), before);
        QVERIFY2(!edit->toolTip().isEmpty(), "no mark");
        const FieldNote *shown = note();
        QVERIFY(shown);
        QVERIFY2(shown->text().contains(reason), qPrintable(shown->text()));
        QVERIFY(shown->mapToGlobal(QPoint()).y() >=
                edit->mapToGlobal(QPoint(0, edit->height())).y());
        QVERIFY(m_window->rect().contains(
            QRect(shown->mapTo(m_window.get(), QPoint()), shown->size())));

        // Undo discards the refused text and nothing else.
        press(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(!note());
        QVERIFY(line(focus())->text() != text);
        QCOMPARE(focus(), edit);
        QVERIFY(!stack()->canRedo());
    }

    void savingARefusedCell_data() {
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("isSaved");
        QTest::newRow("fix") << "Fix" << false;
        QTest::newRow("go on") << "Continue Without It" << true;
    }
    void savingARefusedCell() {
        QFETCH(QString, button);
        QFETCH(bool, isSaved);
        QVERIFY(m_window->openFile(copyOf("small")));
        const QByteArray before = manifest();
        field("&Author:")->setFocus();
        replaceText(QStringLiteral("Ada"));
        openCell(2, "Robots", 0, 1);
        type(QStringLiteral("1.x"));
        Answer answer(click(button));
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(answer.isGiven());
        QCOMPARE(!m_window->isWindowModified(), isSaved);
        QCOMPARE(note() != nullptr, !isSaved);
        QCOMPARE(line(focus())->text() == QStringLiteral("1.x"), !isSaved);
        press(Qt::Key_Escape);
        stack()->undo();
        QCOMPARE(manifest(), before);
    }

    void messageFollowsTheSelection() {
        QVERIFY(m_window->openFile(copyOf("small")));
        m_window->document().edit({appended(path("supportedLanguages"), QStringLiteral("ja_JP"))});
        Tano::BehaviorInfo behavior;
        behavior.setPath("other");
        m_window->document().edit({appended(path("behaviors"), behavior)});
        m_window->showPage(3);
        tabs()->setCurrentIndex(1);
        auto *message = tabs()->widget(1)->findChild<MarkLabel *>();
        auto *languages = combo("Language of the texts");
        auto *list = view<QTreeView>("Behaviors");
        for (const auto &[row, language, isShown] :
             {std::tuple(0, 0, false), {0, 2, true}, {1, 2, false}, {0, 2, true}, {0, 0, false}}) {
            list->setCurrentIndex(list->model()->index(row, 0));
            languages->setCurrentIndex(language);
            QCOMPARE(message->isVisible(), isShown);
        }
    }

    void historyIsThatOfThePackage() {
        const QString fileName = copyOf("small");
        const auto *history = m_window->findChild<QUndoView *>()->model();
        const auto edit = [&] {
            field("&Author:")->setFocus();
            type(QStringLiteral("x"));
            QCOMPARE(action("&Undo Set author")->isEnabled(), true);
            QCOMPARE(history->rowCount(), 2);
        };
        const auto isEmpty = [&] {
            return !action("&Undo")->isEnabled() && history->rowCount() == 1 &&
                   !m_window->isWindowModified();
        };
        edit();
        QVERIFY(m_window->document().open(fileName));
        QVERIFY(isEmpty());
        edit();
        Answer newPackage(QMessageBox::Discard);
        press(Qt::Key_N, Qt::ControlModifier);
        QVERIFY(isEmpty());
        QVERIFY(m_window->openFile(fileName));
        edit();
        stack()->undo();
        stack()->redo();
        Answer reload(click(QStringLiteral("Discard Yours")));
        press(Qt::Key_F5);
        QVERIFY(reload.isGiven());
        QVERIFY(isEmpty());
    }

    void additionsAreNotLost_data() {
        QTest::addColumn<std::function<void()>>("leave");
        const auto row = [](const char *name, const std::function<void()> &leave) {
            QTest::newRow(name) << leave;
        };
        row("behavior", [this] {
            auto *list = view<QTreeView>("Behaviors");
            list->setCurrentIndex(list->model()->index(1, 0));
        });
        row("language", [this] { combo("Language of the texts")->setCurrentIndex(1); });
        row("reload", [this] {
            Answer cancel(click(QStringLiteral("Cancel")));
            press(Qt::Key_F5);
            QVERIFY(cancel.isGiven());
        });
        row("save", [this] { press(Qt::Key_S, Qt::ControlModifier); });
    }
    void additionsAreNotLost() {
        QFETCH(std::function<void()>, leave);
        startAddition("half-ty");
        const auto *behavior = m_window->document().package()->behaviors().first();
        leave();
        QVERIFY(line("A new tag")->text().isEmpty());
        QCOMPARE(behavior->tags(Zel::Language::defaultLanguage()).last(),
                 QStringLiteral("half-ty"));
    }

    // The text is not added, and the reason is shown.
    void refusedAdditions() {
        startAddition("half-ty");
        press(Qt::Key_Return);
        type(QStringLiteral("half-ty"));
        QVERIFY(note());
        const QByteArray before = manifest();
        auto *list = view<QTreeView>("Behaviors");
        list->setCurrentIndex(list->model()->index(1, 0));
        Answer informed(QMessageBox::Ok);
        QCoreApplication::processEvents();
        QCOMPARE(informed.text, QStringLiteral("The list has “half-ty” already."));
        QCOMPARE(manifest(), before);
        QVERIFY(line("A new tag")->text().isEmpty());
    }

    // An edit while the stack steps would drop the commands to redo.
    void undoBesideAnAddition() {
        startAddition("");
        auto &document = m_window->document();
        const auto *shown = document.package()->behaviors().first();
        document.edit({{Edit::Action::Remove,
                        FieldPath().field("behaviors").entry(shown->path().toStdString())}});
        stack()->undo();
        auto *list = view<QTreeView>("Behaviors");
        list->setCurrentIndex(list->model()->index(0, 0));
        line("A new tag")->setFocus();
        type(QStringLiteral("half-ty"));
        for (const int index : {1, 0}) { // removes the behavior that is shown, and restores it
            stack()->setIndex(index);
            QCOMPARE(stack()->count(), 1);
            QCOMPARE(stack()->index(), index);
            QCOMPARE(line("A new tag")->text(), QStringLiteral("half-ty"));
        }
    }

    void undoInAnAddition() {
        startAddition("word");
        press(Qt::Key_Return);
        type(QStringLiteral("other"));
        const QByteArray before = manifest();
        press(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(line("A new tag")->text().isEmpty());
        QCOMPARE(manifest(), before);
        QCOMPARE(stack()->index(), 1);
        press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(stack()->index(), 0);
        QCOMPARE(focus(), line("A new tag"));
    }

    void pastedLinesAreEntries() {
        startAddition("");
        const auto *behavior = m_window->document().package()->behaviors().first();
        const QStringList before = behavior->tags(Zel::Language::defaultLanguage());
        paste("one\r\n" + before.first().toUtf8() + "\ntwo\n\none\nthree\n");
        QCOMPARE(behavior->tags(Zel::Language::defaultLanguage()),
                 before + QStringList({QStringLiteral("one"), QStringLiteral("two"),
                                       QStringLiteral("three")}));
        QCOMPARE(stack()->count(), 1);
        QCOMPARE(line("A new tag")->text(), before.first()); // already exists
        QVERIFY(note());

        press(Qt::Key_A, Qt::ControlModifier);
        paste("a\vb");
        press(Qt::Key_Return);
        QVERIFY(note()->text().contains(QStringLiteral("U+000B")));
        QCOMPARE(stack()->count(), 1);
    }

    void undoShowsTheField_data() { addRowsOf("editor/shown-fields.json"); }
    // Undoing an edit shows its page, entry, language and tab, whatever is shown before.
    void undoShowsTheField() {
        QFETCH(QString, at);
        QFETCH(int, page);
        QVERIFY(m_window->openFile(copyOf("ten-languages")));
        Document &document = m_window->document();
        const FieldPath changed = *FieldPath::parse(at.toStdString());
        const bool isEntry = !changed.steps().back().selectors.empty();
        document.edit({isEntry ? Edit{Edit::Action::Remove, changed} : setText(changed, {})});
        QCOMPARE(stack()->count(), 1);
        m_window->showPage((page + 1) % 6);
        press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(m_window->findChild<QListWidget *>()->currentRow(), page);
        QVERIFY(focus()->isVisible());
        QTEST(QAccessible::queryAccessibleInterface(focus())->text(QAccessible::Name), "name");
        QTEST(shownBy(focus()), "content");
        press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(m_window->findChild<QListWidget *>()->currentRow(), page);
    }

    // The cursor stays at the position of the change, also in the editor of a cell.
    void undoKeepsTheCursor() {
        QVERIFY(m_window->openFile(copyOf("small")));
        QLineEdit *author = field("&Author:");
        author->setFocus();
        replaceText(QStringLiteral("abcdef"));
        press(Qt::Key_Return);
        author->setCursorPosition(3);
        type(QStringLiteral("xy"));
        press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(author->text(), QStringLiteral("abcdef"));
        QCOMPARE(author->cursorPosition(), 3);
        press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(author->cursorPosition(), 5);

        m_window->showPage(1);
        auto *description = visible<QPlainTextEdit>();
        description->setFocus();
        press(Qt::Key_A, Qt::ControlModifier);
        type(QStringLiteral("one two"));
        m_window->document().closeRun();
        press(Qt::Key_Home);
        type(QStringLiteral("x"));
        press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(description->toPlainText(), QStringLiteral("one two"));
        QCOMPARE(description->textCursor().position(), 0);

        openCell(1, "Languages and texts", 0, 3);
        const QPointer<QWidget> editor = focus();
        press(Qt::Key_End);
        type(QStringLiteral("!"));
        press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(focus(), editor.data());
        QCOMPARE(line(focus())->cursorPosition(), int(line(focus())->text().size()));
    }

private:
    static FieldPath path(const char *list) { return FieldPath().field(list); }
    static QLineEdit *line(QWidget *widget) { return qobject_cast<QLineEdit *>(widget); }
    using EditorTest::line;

    static QString shownBy(const QWidget *widget) {
        if (const auto *edit = qobject_cast<const QLineEdit *>(widget))
            return edit->text();
        if (const auto *view = qobject_cast<const QAbstractItemView *>(widget)) {
            const QModelIndex cell = view->currentIndex();
            const bool isCheckBox = cell.data(Qt::CheckStateRole).isValid();
            return (isCheckBox ? cell.siblingAtColumn(0) : cell).data().toString();
        }
        return qobject_cast<const QComboBox *>(widget)->currentText();
    }

    // Opens the editor of a cell with its text selected.
    QTableView *openCell(int page, const char *table, int row, int column) {
        m_window->showPage(page);
        auto *shown = view<QTableView>(table);
        shown->setFocus();
        shown->setCurrentIndex(shown->model()->index(row, column));
        press(Qt::Key_F2);
        return shown;
    }
    // Types a new English tag for the package's first behavior.
    void startAddition(const char *text) {
        QVERIFY(m_window->openFile(copyOf("ten-languages")));
        m_window->showPage(3);
        tabs()->setCurrentIndex(3);
        line("A new tag")->setFocus();
        type(QLatin1String(text));
    }
    void paste(const QByteArray &text) {
        QGuiApplication::clipboard()->setText(QString::fromUtf8(text));
        press(Qt::Key_V, Qt::ControlModifier);
    }
    // The visible refusal, or null.
    FieldNote *note() const { return visible<FieldNote>(); }
    QComboBox *combo(const char *accessibleName) const {
        for (QComboBox *each : m_window->findChildren<QComboBox *>()) {
            if (each->accessibleName() == QLatin1String(accessibleName))
                return each;
        }
        return nullptr;
    }
    QAction *action(const char *text) const {
        for (QAction *each : m_window->findChildren<QAction *>()) {
            if (each->text() == QLatin1String(text))
                return each;
        }
        return nullptr;
    }
};

QTEST_MAIN(TestEditorTyping)
#include "tst_editor_typing.moc"
