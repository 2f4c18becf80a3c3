#include "document/field_edits.h"
#include "editor_test.h"
#include "models/problems_model.h"
#include "widgets/icon_button.h"
#include "widgets/message_bar.h"

#include <QListView>
#include <QListWidget>
#include <QMenu>
#include <QProcess>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>
#include <QUndoView>

using namespace Editor;

class TestPropertiesEditor : public QObject, private EditorTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare(); }
    void init() { showWindow(); }
    void cleanup() { closeWindow(); }

    // The whole workflow: fixes every problem from the dock, undoes, redoes, saves and validates.
    void correctEverything() {
        const QString fileName = copyOf(ZEL_TEST_DATA "/editor/faulty");
        QVERIFY(m_window->openFile(fileName));
        const QByteArray before = contentOf(fileName);
        QCOMPARE(problemCount(), 15);

        for (int left = problemCount(); left > 0; left = problemCount()) {
            const QString path =
                problems()->model()->index(0, 0).data(ProblemsModel::PathRole).toString();
            doubleClickProblem(0);
            correct(*Tano::FieldPath::parse(Zel::toUtf8(path)));
            QVERIFY2(problemCount() < left, qPrintable(path));
        }
        const int steps = stack()->count();
        QVERIFY(m_window->isWindowModified());

        for (int i = 0; i < steps; ++i)
            press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(problemCount(), 15);
        QVERIFY(!m_window->isWindowModified());
        QCOMPARE(manifest(), before);
        for (int i = 0; i < steps; ++i)
            press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(problemCount(), 0);

        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!m_window->isWindowModified());
        QProcess validate;
        validate.start(QStringLiteral(ZEL_PACKAGE_PROGRAM), {QStringLiteral("validate"), fileName});
        QVERIFY(validate.waitForFinished());
        QCOMPARE(validate.readAllStandardOutput(), QByteArray());
        QCOMPARE(validate.exitCode(), 0);
    }

    void fixesProblems() {
        QVERIFY(m_window->openFile(copyOf("faulty")));
        const int found = problemCount();
        press(Qt::Key_F8);
        QCOMPARE(problems()->currentIndex().row(), 0);
        const auto buttons = problems()->parentWidget()->findChildren<QPushButton *>();
        QCOMPARE(buttons.first()->text(), QStringLiteral("Change it to 'night-watch'"));
        QTest::mouseClick(buttons.first(), Qt::LeftButton);
        QCOMPARE(field("&UID:")->text(), QStringLiteral("night-watch"));
        QVERIFY(problemCount() < found);
        stack()->undo();
        QCOMPARE(problemCount(), found);

        const auto actions = m_window->findChildren<QAction *>();
        const auto fixAll = std::find_if(actions.begin(), actions.end(), [](const QAction *each) {
            return each->text() == QStringLiteral("&Fix All Safe Problems");
        });
        (*fixAll)->trigger();
        QVERIFY(problemCount() < found);
        QCOMPARE(stack()->count(), 1);
        (*fixAll)->trigger(); // no problems remain
        QCOMPARE(stack()->count(), 1);
        stack()->undo();
        QCOMPARE(problemCount(), found);
    }

    void savesWhileAFieldHasTheFocus_data() {
        QTest::addColumn<int>("page");
        QTest::addColumn<QString>("expected");
        QTest::newRow("line") << 0 << "<author>typed</author>";
        QTest::newRow("cell") << 1 << "<name>typed</name>";
        QTest::newRow("line of a list") << 3 << "<permission>typed</permission>";
        QTest::newRow("cell of a list") << -3 << "<triggerSentence>typed</triggerSentence>";
    }
    void savesWhileAFieldHasTheFocus() {
        QFETCH(int, page);
        QFETCH(QString, expected);
        const QString fileName = copyOf("small");
        QVERIFY(m_window->openFile(fileName));
        m_window->showPage(std::abs(page));
        if (page == 0) {
            field("&Author:")->setFocus();
            press(Qt::Key_A, Qt::ControlModifier);
        } else if (page == 1) {
            view<QTableView>("Languages and texts")->setFocus();
        } else if (page == 3) {
            tabs()->setCurrentIndex(5);
            line("A new permission")->setFocus();
        } else {
            tabs()->setCurrentIndex(1);
            auto *list = view<QListView>("Trigger sentences");
            list->setFocus();
            list->setCurrentIndex(list->model()->index(0, 0));
        }
        type(QStringLiteral("typed"));
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(contentOf(fileName).contains(expected.toUtf8()));
        QVERIFY(!m_window->isWindowModified());
    }

    void closing_data() {
        QTest::addColumn<int>("button");
        QTest::addColumn<bool>("isClosed");
        QTest::addColumn<bool>("isSaved");
        QTest::newRow("cancel") << int(QMessageBox::Cancel) << false << false;
        QTest::newRow("discard") << int(QMessageBox::Discard) << true << false;
        QTest::newRow("save") << int(QMessageBox::Save) << true << true;
    }
    void closing() {
        QFETCH(int, button);
        const QString fileName = copyOf("small");
        QVERIFY(m_window->openFile(fileName));
        field("&Author:")->setFocus();
        replaceText(QStringLiteral("typed"));
        Answer answer{QMessageBox::StandardButton(button)};
        QTEST(m_window->close(), "isClosed");
        QVERIFY(answer.isGiven());
        QTEST(contentOf(fileName).contains("typed"), "isSaved");
        QTEST(!m_window->isVisible(), "isClosed");
    }

    // Saving a new package asks for a file; canceling that also cancels closing.
    void closingWithoutAFile() {
        field("&Author:")->setFocus();
        type(QStringLiteral("typed"));
        bool isAsked = false;
        Answer answer{std::function<void(QMessageBox *)>([&](QMessageBox *box) {
            QTimer::singleShot(0, this, [&] {
                auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
                isAsked = dialog;
                if (dialog)
                    dialog->reject();
            });
            box->button(QMessageBox::Save)->click();
        })};
        QVERIFY(!m_window->close());
        QVERIFY(answer.isGiven() && isAsked);
        QVERIFY(m_window->isWindowModified());
    }

    void newFromTemplateAndSaveAs() {
        const QString fileName = m_directory.filePath(QStringLiteral("new.xml"));
        press(Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(field("&UID:")->text(), QStringLiteral("new-package"));
        QVERIFY(!m_window->isWindowModified());
        QVERIFY(problemCount() > 0);
        Answer answer{choose(fileName)};
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(answer.isGiven());
        QVERIFY(contentOf(fileName).contains("uid=\"new-package\""));
        QVERIFY(m_window->windowTitle().contains(QStringLiteral("new.xml")));
        QCOMPARE(QSettings().value(QStringLiteral("recentFiles")).toStringList().first(), fileName);
    }

    void dropsAnIcon() {
        const QString fileName = copyOf("small");
        QVERIFY(m_window->openFile(fileName));
        auto *button = m_window->findChild<IconButton *>();
        drop(button, QStringLiteral(ZEL_SOURCE_DIR "/examples/packages/ten-languages/icon.png"));
        QCOMPARE(stack()->count(), 1);
        button->setFocus();
        press(Qt::Key_S, Qt::ControlModifier);
        m_window->showPage(3);
        stack()->undo();
        QVERIFY(button->isVisible()); // shows the change
        stack()->redo();
        const QString icon = QFileInfo(fileName).dir().filePath(QStringLiteral("icon.png"));
        QVERIFY(QFile::exists(icon));
        press(Qt::Key_Z, Qt::ControlModifier);
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!QFile::exists(icon));
    }

    // Manifest and icon are saved together or not at all, and a failure does not count as a
    // conflict.
    void refusesALinkedIcon() {
        const QString fileName = copyOf("small");
        const QString icon = QFileInfo(fileName).dir().filePath(QStringLiteral("icon.png"));
        const QString target = QFileInfo(fileName).dir().filePath(QStringLiteral("target"));
        writeTo(target, "kept");
        QVERIFY(QFile::link(target, icon));
        QVERIFY(m_window->openFile(fileName));
        const QByteArray before = contentOf(fileName);
        drop(m_window->findChild<IconButton *>(),
             QStringLiteral(ZEL_SOURCE_DIR "/examples/packages/ten-languages/icon.png"));
        field("&Author:")->setFocus();
        replaceText(QStringLiteral("typed"));
        Answer answer(QMessageBox::Cancel);
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(answer.isGiven());
        QVERIFY2(answer.text.contains(QStringLiteral("symbolic link")), qPrintable(answer.text));
        QCOMPARE(contentOf(target), QByteArray("kept"));
        QCOMPARE(contentOf(fileName), before);
        QVERIFY(m_window->isWindowModified());
        QCOMPARE(m_window->document().checkDisk(), Document::DiskState::Same);

        QVERIFY(QFile::remove(icon));
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(contentOf(icon).startsWith("\x89PNG"));
        QVERIFY(contentOf(fileName).contains("typed"));
        writeTo(fileName, "another program's");
        QVERIFY(!m_window->document().save(fileName)); // had no earlier check of the disk
        QCOMPARE(contentOf(fileName), QByteArray("another program's"));
    }

    void saysWhyAFileCannotBeRead() {
        QVERIFY(m_window->openFile(copyOf("small")));
        const QString name = field("&UID:")->text();
        const QString broken = m_directory.filePath(QStringLiteral("broken.xml"));
        writeTo(broken, "<package");
        Answer answer(QMessageBox::Ok);
        QVERIFY(!m_window->openFile(broken));
        QVERIFY(answer.isGiven());
        QVERIFY2(answer.text.startsWith(QStringLiteral("Line 1, ")), qPrintable(answer.text));
        QCOMPARE(field("&UID:")->text(), name);
    }

    void valuesAreNoMarkup() {
        writeTo(m_directory.filePath(QStringLiteral("<b>.xml")), "<html/>");
        Answer answer{std::function<void(QMessageBox *)>([&](QMessageBox *box) {
            box->button(QMessageBox::Ok)->click(); // closes it after these checks
            QCOMPARE(markupOf(box), QStringList());
            QVERIFY(box->informativeText().contains(QStringLiteral("&lt;b&gt;.xml")));
            const auto labels = box->findChildren<QLabel *>();
            for (const QLabel *label : labels)
                QVERIFY(!label->text().contains(QStringLiteral("<html>")) ||
                        label->textFormat() == Qt::PlainText);
        })};
        QVERIFY(!m_window->openFile(m_directory.filePath(QStringLiteral("<b>.xml"))));
        QVERIFY(answer.isGiven());

        const QString fileName = m_directory.filePath(QStringLiteral("hostile.xml"));
        const QByteArray image = "&lt;img src=/none.png>";
        QByteArray content =
            "<package format='1' uid='@' version='1'><supportedLanguage code='@'/>"
            "<supportedLanguage code='en_US'/><texts language='en_US'><name>@</name></texts>"
            "<behavior path='@/@' userRequestable='true'><texts language='en_US'><name>@</name>"
            "<triggerSentence>@</triggerSentence></texts></behavior><robotRequirement model='@' "
            "minBodyVersion='2' maxBodyVersion='1'/></package>";
        writeTo(fileName, content.replace("@", image));
        QVERIFY(m_window->openFile(fileName));
        for (int page = 0; page < 6; ++page) {
            m_window->showPage(page);
            QCoreApplication::processEvents();
            QCOMPARE(markupOf(m_window.get()), QStringList());
        }
        for (int row = 0; row < problemCount(); ++row) {
            doubleClickProblem(row);
            QCOMPARE(markupOf(m_window.get()), QStringList());
        }
        field("&Author:")->setFocus();
        stack()->push(new QUndoCommand(QStringLiteral("<img src=/none.png>")));
        QCOMPARE(markupOf(m_window.get()), QStringList());
        QVERIFY(m_escaped > 20); // tool tips that show the value were seen
    }

    void fileChangesOnDisk() {
        const QString fileName = copyOf("small");
        QVERIFY(m_window->openFile(fileName));
        const auto *bar = m_window->findChild<MessageBar *>();
        QVERIFY(!bar->isVisible());
        QByteArray content = contentOf(fileName);
        content.replace("morning-wave", "evening-wave");
        writeTo(fileName, content);
        QCOMPARE(m_window->document().checkDisk(), Document::DiskState::Changed);
        QVERIFY(bar->isVisible());

        field("&Author:")->setFocus();
        replaceText(QStringLiteral("typed"));
        Answer cancel(QMessageBox::Cancel);
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(cancel.isGiven());
        QCOMPARE(contentOf(fileName), content);

        Answer discard(click(QStringLiteral("Discard Yours")));
        QTest::mouseClick(bar->findChild<QPushButton *>(), Qt::LeftButton);
        QVERIFY(discard.isGiven());
        QCOMPARE(manifest(), content);
        QVERIFY(!bar->isVisible());
    }

    void fileVanishes() {
        const QString fileName = copyOf("small");
        QVERIFY(m_window->openFile(fileName));
        const QByteArray content = contentOf(fileName);
        QVERIFY(QFile::remove(fileName));
        QCOMPARE(m_window->document().checkDisk(), Document::DiskState::Vanished);
        const auto *bar = m_window->findChild<MessageBar *>();
        QVERIFY(bar->isVisible());
        QVERIFY(m_window->isWindowModified());
        QTest::mouseClick(bar->findChild<QPushButton *>(), Qt::LeftButton);
        QCOMPARE(contentOf(fileName), content);
        QVERIFY(!m_window->isWindowModified());

        QVERIFY(QFile::remove(fileName));
        Answer answer(QMessageBox::Ok);
        m_window->document().undoStack()->setClean();
        QVERIFY(!m_window->openFile(fileName));
        QVERIFY(answer.isGiven());
        QVERIFY2(answer.text.contains(QStringLiteral("No such file")), qPrintable(answer.text));
    }

    void marksWrongTextsAsTheyAreTyped() {
        QVERIFY(m_window->openFile(copyOf("small")));
        QLineEdit *uid = field("&UID:");
        uid->setFocus();
        replaceText(QStringLiteral("Bad"));
        QVERIFY(!uid->toolTip().isEmpty());
        QVERIFY(uid->toolTip().contains(uid->accessibleDescription()));
        replaceText(QStringLiteral("good"));
        QVERIFY(uid->toolTip().isEmpty());

        QLineEdit *version = field("Ve&rsion:");
        version->setFocus();
        replaceText(QStringLiteral("2.5"));
        press(Qt::Key_Return);
        QCOMPARE(version->text(), QStringLiteral("2.5.0"));

        m_window->showPage(2);
        auto *robots = view<QTableView>("Robots");
        robots->setFocus();
        robots->setCurrentIndex(robots->model()->index(0, 1));
        type(QStringLiteral("3.0"));
        press(Qt::Key_Return);
        QCoreApplication::processEvents(); // the editor closes asynchronously
        robots->setCurrentIndex(robots->model()->index(0, 2));
        type(QStringLiteral("1.4"));
        const QWidget *editor = QApplication::focusWidget();
        QVERIFY(editor != robots);
        QVERIFY(!editor->toolTip().isEmpty());
    }

    void addsLanguages() {
        QVERIFY(m_window->openFile(copyOf("small")));
        const QByteArray before = manifest();
        m_window->showPage(1);
        Answer choice{std::function<void(QDialog *)>([](QDialog *dialog) {
            dialog->findChild<QLineEdit *>()->setText(QStringLiteral("finn"));
            dialog->accept();
        })};
        QTest::mouseClick(button("&Add Language…"), Qt::LeftButton);
        QVERIFY(choice.isGiven());
        QCOMPARE(problemCount(), 3);
        QCOMPARE(view<QTableView>("Languages and texts")->currentIndex().row(), 2);
        stack()->undo();
        QCOMPARE(manifest(), before);

        Answer answer(QMessageBox::Ok);
        m_window->document().edit(
            {appended(Tano::FieldPath().field("supportedLanguages"), QStringLiteral("en_US"))},
            QStringLiteral("Add language"));
        QTRY_VERIFY(answer.isGiven());
        QCOMPARE(answer.text, QStringLiteral("'en_US' already exists."));
    }

    void editsDialogsAndServices() {
        QVERIFY(m_window->openFile(copyOf("ten-languages")));
        const QByteArray before = manifest();
        m_window->showPage(4);
        auto *topics = view<QTableView>("Topic files");
        const QModelIndex topic = topics->model()->index(1, 1);
        topics->setCurrentIndex(topic);
        QTest::mouseClick(button("Remove Fi&le"), Qt::LeftButton);
        QVERIFY(topic.data().toString().isEmpty());

        m_window->showPage(5);
        auto *services = view<QTableView>("Services");
        services->setFocus();
        services->setCurrentIndex(services->model()->index(2, 2));
        press(Qt::Key_Space);
        QVERIFY(m_window->document().package()->services().at(2)->isAutoRun());
        QCOMPARE(stack()->count(), 2);
        // Undo works from the history view as well as by keyboard.
        auto *history = m_window->findChild<QUndoView *>();
        QTest::mouseClick(history->viewport(), Qt::LeftButton, {},
                          history->visualRect(history->model()->index(0, 0)).center());
        QCOMPARE(manifest(), before);
        QVERIFY(!m_window->isWindowModified());
    }

    void opensRecentFiles() {
        const QString first = copyOf("small");
        QVERIFY(m_window->openFile(first));
        QVERIFY(m_window->openFile(copyOf("ten-languages")));
        QMenu *recent = nullptr;
        for (QMenu *menu : m_window->findChildren<QMenu *>()) {
            if (menu->title() == QLatin1String("Open &Recent"))
                recent = menu;
        }
        QVERIFY(recent);
        Q_EMIT recent->aboutToShow();
        recent->actions().at(1)->trigger();
        QCOMPARE(m_window->document().fileName(), first);
    }

    void speaksTheUsersLanguage() {
        for (const auto &[locale, expected] : {std::pair("fr_FR.UTF-8", "Le manifeste à ouvrir."),
                                               {"ja_JP.UTF-8", "開くマニフェスト。"}}) {
            QProcess program;
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert(QStringLiteral("LC_ALL"), QLatin1String(locale));
            program.setProcessEnvironment(environment);
            program.start(QStringLiteral(ZEL_EDITOR_PROGRAM), {QStringLiteral("--help")});
            QVERIFY(program.waitForFinished());
            const QByteArray shown = program.readAllStandardOutput();
            QVERIFY2(shown.contains(expected), shown.constData());
        }
    }

    void tenThousandBehaviors() {
        const QString fileName = m_directory.filePath(QStringLiteral("many.xml"));
        Zel::PackageInfoModel package;
        for (int i = 0; i < 10000; ++i)
            package.addBehavior(QStringLiteral("behavior-%1").arg(i));
        QVERIFY(package.saveToManifestFile(fileName));
        QVERIFY(m_window->openFile(fileName));
        m_window->showPage(3);
        auto *list = view<QTreeView>("Behaviors");
        QCOMPARE(list->model()->rowCount(), 10000);
        list->setFocus();
        press(Qt::Key_End);
        QCOMPARE(field("Pa&th:")->text(), QStringLiteral("behavior-9999"));
        line("Find a behavior")->setFocus();
        type(QStringLiteral("r-777"));
        QCOMPARE(list->model()->rowCount(), 11);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualRect(list->model()->index(1, 0)).center());
        QCOMPARE(field("Pa&th:")->text(), QStringLiteral("behavior-7770"));
    }

    void fitsSmallAndMirroredWindows() {
        QApplication::setLayoutDirection(Qt::RightToLeft);
        QVERIFY(m_window->openFile(copyOf("ten-languages")));
        m_window->resize(1024, 700);
        QVERIFY(m_window->minimumSizeHint().width() <= 1024);
        QVERIFY(m_window->minimumSizeHint().height() <= 700);
        QVERIFY(m_window->findChild<QListWidget *>()->geometry().left() > 512);
        // No page needs horizontal scrolling.
        for (int page = 0; page < 6; ++page) {
            m_window->showPage(page);
            QCoreApplication::processEvents();
            for (const auto *area : m_window->findChildren<QScrollArea *>())
                QVERIFY2(!area->isVisible() || area->horizontalScrollBar()->maximum() == 0,
                         area->widget()->metaObject()->className());
        }
    }

private:
    // The labels and tool tips below a widget that would interpret a package's value as markup.
    QStringList markupOf(const QWidget *root) {
        QStringList found;
        const auto take = [&](const QString &text) {
            m_escaped += text.contains(QStringLiteral("&lt;img"));
            if (text.contains(QStringLiteral("<img")))
                found += text;
        };
        const auto labels = root->findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (label->textFormat() != Qt::PlainText)
                take(label->text());
        }
        const auto widgets = root->findChildren<QWidget *>();
        for (const QWidget *widget : widgets)
            take(widget->toolTip());
        const auto actions = root->findChildren<QAction *>();
        for (const QAction *action : actions)
            take(action->toolTip());
        const auto views = root->findChildren<QAbstractItemView *>();
        for (const QAbstractItemView *view : views) {
            const QAbstractItemModel *model = view->model();
            for (int cell = 0; model && cell < model->rowCount() * model->columnCount(); ++cell)
                take(model->index(cell / model->columnCount(), cell % model->columnCount())
                         .data(Qt::ToolTipRole)
                         .toString());
        }
        return found;
    }

    void doubleClickProblem(int row) {
        const QPoint point = problems()->visualRect(problems()->model()->index(row, 1)).center();
        QTest::mouseClick(problems()->viewport(), Qt::LeftButton, {}, point);
        QTest::mouseDClick(problems()->viewport(), Qt::LeftButton, {}, point);
    }

    // Fixes the field with the focus.
    void correct(const Tano::FieldPath &path) {
        const QString field = fieldName(path, 1);
        if (field == QLatin1String("model")) {
            press(Qt::Key_F2);
            press(Qt::Key_Down);
        } else if (field.endsWith(QLatin1String("Version"))) {
            type(field.startsWith(QLatin1String("min")) ? QStringLiteral("1.0")
                                                        : QStringLiteral("9.0"));
            press(Qt::Key_Return);
        } else if (fieldName(path) == QLatin1String("uid")) {
            replaceText(QStringLiteral("night-watch"));
        } else {
            type(QStringLiteral("mended"));
            if (fieldName(path) == QLatin1String("behaviors"))
                press(Qt::Key_Return);
        }
        QCoreApplication::processEvents(); // the cell's editor closes asynchronously
    }

    int m_escaped = 0;
};

QTEST_MAIN(TestPropertiesEditor)
#include "tst_properties_editor.moc"
