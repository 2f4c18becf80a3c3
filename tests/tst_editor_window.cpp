#include "editor_test.h"
#include "golden.h"
#include "pages/behavior_details.h"
#include "pages/language_chooser.h"
#include "pages/page.h"
#include "table_file.h"
#include "widgets/hint_label.h"
#include "widgets/icon_button.h"
#include "widgets/icons.h"
#include "widgets/row_actions.h"
#include "window/application_setup.h"
#include "window/main_window.h"
#include "window/page_stack.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QCommandLinkButton>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QHeaderView>
#include <QListWidget>
#include <QMenuBar>
#include <QMetaEnum>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QScreen>
#include <QSplitter>
#include <QTableView>
#include <QTranslator>
#include <QTreeWidget>

#include <array>
#include <cmath>
#include <functional>
#include <vector>

using namespace Editor;

namespace {

constexpr int pageCount = 8;

QString nameOf(QWidget *widget) {
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

QString roleOf(QWidget *widget) {
    const auto role = QAccessible::queryAccessibleInterface(widget)->role();
    return QLatin1String(QMetaEnum::fromType<QAccessible::Role>().valueToKey(role));
}

} // namespace

class TestEditorWindow : public QObject, EditorTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        prepare();
        setUpApplication();
    }

    void init() { showWindow(); }

    void cleanup() {
        closeWindow();
        const auto translators = QCoreApplication::instance()->findChildren<QTranslator *>();
        qDeleteAll(translators);
        QSettings().clear();
        QApplication::setPalette(QPalette());
    }

    void tabKeyFollowsTheScreen_data() {
        QTest::addColumn<int>("page");
        const std::array names{"identity", "languages", "requirements", "behaviors",
                               "dialogs",  "services",  "translation",  "review"};
        for (int page = 0; page < pageCount; ++page)
            QTest::newRow(names.at(std::size_t(page))) << page;
    }
    void tabKeyFollowsTheScreen() {
        QFETCH(int, page);
        QVERIFY(m_window->openFile(sample("ten-languages")));
        m_window->showPage(page);
        QString stops;
        auto *tabs = shownPage()->findChild<QTabWidget *>();
        for (int tab = 0; tab < (tabs ? tabs->count() : 1); ++tab) {
            if (tabs) {
                tabs->setCurrentIndex(tab);
                stops += QStringLiteral("[%1]\n").arg(tabs->tabText(tab));
            }
            stops += walk();
        }
        const QString golden = QStringLiteral(ZEL_TEST_DATA "/editor/tab-order/%1.txt");
        COMPARE_WITH_GOLDEN(golden.arg(QLatin1String(QTest::currentDataTag())), stops.toUtf8());
    }

    // The bar of docks that share their place follows their pages.
    void tabKeyReachesTheBarOfDocks() {
        QVERIFY(m_window->openFile(sample("small")));
        press(Qt::Key_F, Qt::ControlModifier);
        QTRY_VERIFY(m_window->findChild<QTabBar *>(QString(), Qt::FindDirectChildrenOnly));
        QCoreApplication::processEvents();
        COMPARE_WITH_GOLDEN(QStringLiteral(ZEL_TEST_DATA "/editor/tab-order/docks.txt"),
                            walk().toUtf8());
    }

    void mnemonicsAreUnique_data() {
        QTest::addColumn<QString>("locale");
        for (const char *locale : {"en_US", "fr_FR", "ja_JP"})
            QTest::newRow(locale) << QString::fromLatin1(locale);
    }
    void mnemonicsAreUnique() {
        QFETCH(QString, locale);
        installTexts(QLocale(locale));
        showWindow();
        QStringList menus;
        for (const QAction *action : m_window->menuBar()->actions())
            menus += action->text();
        for (int page = 0; page < pageCount; ++page) {
            m_window->showPage(page);
            QStringList texts = menus;
            for (const auto *label : shownPage()->findChildren<QLabel *>())
                texts += label->buddy() ? label->text() : QString();
            for (const auto *button : shownPage()->findChildren<QAbstractButton *>())
                texts += button->text();
            QCOMPARE(sharedMnemonics(texts), QString());
        }
        m_window->showField(QStringLiteral("behaviors"));
        QStringList edit;
        for (const QAction *action : m_window->menuBar()->actions().at(1)->menu()->actions())
            edit += action->text();
        QVERIFY(edit.size() > 12); // with the actions of the list
        QCOMPARE(sharedMnemonics(edit), QString());
    }

    // Adds an entry with a button, types its name, and removes it with another button.
    void newEntriesAreReadyForTyping_data() { addRowsOf("editor/new-entries.json"); }
    void newEntriesAreReadyForTyping() {
        QFETCH(int, page);
        QFETCH(QString, add);
        QFETCH(QString, typed);
        QFETCH(QString, expected);
        m_window->showPage(page);
        const QByteArray before = manifest();
        clickButton(add);
        QTest::keyClicks(QApplication::focusWidget(), typed);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCoreApplication::processEvents();
        QVERIFY2(manifest().contains(expected.toUtf8()), manifest().constData());
        QFETCH(QString, remove);
        clickButton(remove);
        QCOMPARE(manifest(), before);
    }

    // While a cell is edited, the key deletes a letter.
    void deletesLettersWhileTyping() {
        m_window->showPage(5);
        QTest::mouseClick(shownPage()->findChild<QPushButton *>(), Qt::LeftButton);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("clock"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Home);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
        const auto *line = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        QVERIFY(line);
        QCOMPARE(line->text(), QStringLiteral("lock"));
    }

    void hintsAndCheckBoxesAreVisible() {
        for (const QPalette &palette : {QPalette(), QPalette(QColor(0x20, 0x20, 0x20))}) {
            QApplication::setPalette(palette);
            HintLabel hint(QStringLiteral("\u2588"));
            QVERIFY(contrast(hint) > 4.5);
        }
        QCheckBox box; // in the dark
        QVERIFY(contrast(box) > 3);
    }

    // An issue of the whole package, such as that of its icon, marks no field.
    void marksFieldsAtFaultOnly() {
        const QString fileName = copyOf("small");
        writeTo(QFileInfo(fileName).dir().filePath(QStringLiteral("icon.png")), "no picture");
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("Ignoring .*icon.png")));
        QVERIFY(m_window->openFile(fileName));
        QCOMPARE(problemCount(), 1);
        const auto *languages = view<QTableView>("Languages and texts")->model();
        QVERIFY(languages->index(0, 0).data(Qt::DecorationRole).isNull());
    }

    // Icons and marks that are already visible change their colors.
    void followsThePalette() {
        const QIcon icon = iconOf(Symbol::Add);
        const QImage before = icon.pixmap(32).toImage();
        auto *uid = field("&UID:");
        const QColor tint = uid->palette().color(QPalette::Base);
        QVERIFY(tint.lightness() > 128);
        QApplication::setPalette(QPalette(QColor(0x20, 0x20, 0x20)));
        QCoreApplication::processEvents();
        QVERIFY(icon.pixmap(32).toImage() != before);
        QVERIFY2(uid->palette().color(QPalette::Base).lightness() < 128,
                 qPrintable(uid->palette().color(QPalette::Base).name()));
        QVERIFY(uid->palette().color(QPalette::Base) !=
                QApplication::palette().color(QPalette::Base));
    }

    void publishes() {
        const QString fileName = copyOf("ten-languages"); // without its topic files
        const QString published = m_directory.filePath(QStringLiteral("published.xml"));
        QVERIFY(m_window->openFile(fileName));
        const QByteArray before = contentOf(fileName);
        QStringList shown;
        answerInTurn({pressButton(shown, QMessageBox::AcceptRole), chooseFile(fileName),
                      pressButton(shown, QMessageBox::YesRole),
                      pressButton(shown, QMessageBox::AcceptRole), chooseFile(published)});
        press(Qt::Key_E, Qt::ControlModifier);
        QVERIFY2(shown.value(0).contains(QStringLiteral(".top")), qPrintable(shown.value(0)));
        QVERIFY2(shown.value(2).contains(QStringLiteral("fewer texts")),
                 qPrintable(shown.value(2)));
        QCOMPARE(contentOf(fileName), before);
        QVERIFY(contentOf(published).contains("uid=\"reading-corner\""));
        QVERIFY(m_answers.empty());
    }

    void publishesNoMalformedScripts() {
        QVERIFY(m_window->openFile(copyOf("small")));
        m_window->document().edit(
            {{Zel::PackageModel::Edit::Action::Set, *Tano::FieldPath::parse("names[fr_FR]"),
              QStringLiteral("<speak>")}});
        QStringList shown;
        answerInTurn({pressButton(shown, QMessageBox::AcceptRole)});
        press(Qt::Key_E, Qt::ControlModifier);
        QVERIFY2(shown.value(0).startsWith(QStringLiteral("A package with malformed")),
                 qPrintable(shown.value(0)));
    }

    void savesElsewhereAfterAFailure() {
        const QString fileName = copyOf("small");
        const QString other = m_directory.filePath(QStringLiteral("other.xml"));
        QVERIFY(m_window->openFile(fileName));
        QVERIFY(QDir().rename(QFileInfo(fileName).path(),
                              m_directory.filePath(QStringLiteral("moved"))));
        QStringList shown;
        answerInTurn({pressButton(shown, QMessageBox::AcceptRole), chooseFile(other)});
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY2(shown.value(0).contains(QStringLiteral("No such file")),
                 qPrintable(shown.value(0)));
        QCOMPARE(m_window->document().fileName(), other);
        QVERIFY(contentOf(other).contains("morning-wave"));
    }

    void findsLanguages_data() { addRowsOf("editor/languages.json"); }
    void findsLanguages() {
        QFETCH(QString, typed);
        QFETCH(QString, remark);
        LanguageChooser chooser({QStringLiteral("en_US")});
        auto *line = chooser.findChild<QLineEdit *>();
        line->setText(typed.left(1));
        line->setText(typed);
        QTEST(chooser.code(), "code");
        const QString shown = chooser.findChild<HintLabel *>()->text();
        QVERIFY2(remark.isEmpty() ? shown.isEmpty() : shown.contains(remark), qPrintable(shown));
        QCOMPARE(chooser.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->isEnabled(),
                 !chooser.code().isEmpty());
    }

    // Removes a language with all contents, also one that only has texts.
    void removesLanguages() {
        QVERIFY(m_window->openFile(copyOf("small")));
        m_window->document().edit(
            {{Zel::PackageModel::Edit::Action::Set, *Tano::FieldPath::parse("names[it_IT]"),
              QStringLiteral("Saluta")}});
        const QByteArray before = manifest();
        m_window->showPage(1);
        auto *table = view<QTableView>("Languages and texts");
        for (int rows = 3; rows > 1; --rows) {
            QCOMPARE(table->model()->rowCount(), rows);
            Editor::selectAlone(table, table->model()->index(1, 0));
            QTest::mouseClick(button("&Remove Language"), Qt::LeftButton);
        }
        QVERIFY2(!manifest().contains("fr_FR") && !manifest().contains("it_IT"),
                 manifest().constData());
        stack()->undo();
        stack()->undo();
        QCOMPARE(manifest(), before);
    }

    void offersNoMissingRobot() {
        m_window->showPage(2);
        QTest::mouseClick(button("Add &Robot"), Qt::LeftButton);
        const auto *combo = qobject_cast<QComboBox *>(QApplication::focusWidget());
        QVERIFY(combo && combo->count() > 1);
        QCOMPARE(combo->findText(QStringLiteral("Any robot")), -1);
    }

    void dropsAManifestAnywhere() {
        const QVector<QWidget *> targets{m_window.get(), field("&Author:"),
                                         m_window->findChild<IconButton *>(),
                                         view<QTableView>("Robots")->viewport(),
                                         m_window->findChild<QPlainTextEdit *>()->viewport()};
        for (QWidget *target : targets) {
            const QString fileName = copyOf("small");
            drop(target, fileName);
            QCOMPARE(m_window->document().fileName(), fileName);
        }
    }

    void remembersTheWindow() {
        m_window->resize(700, 600);
        m_window->showPage(4);
        dock("history")->hide();
        auto *column = problems()->header();
        column->resizeSection(2, 222);
        auto *splitter = shownPage()->findChild<QSplitter *>();
        splitter->setSizes({150, splitter->width() - 150});
        const QList<int> sizes = splitter->sizes();
        QVERIFY(m_window->close());
        showWindow();
        m_window->restore();
        QCOMPARE(m_window->size(), QSize(700, 600));
        QCOMPARE(shownPage()->findChild<QSplitter *>()->sizes(), sizes);
        QCOMPARE(problems()->header()->sectionSize(2), 222);
        QVERIFY(dock("history")->isHidden());
        QVERIFY(!dock("problems")->isHidden());
        QVERIFY(field("&Topic:")->isVisible());
    }

    // Works even if the window's screen was disconnected.
    void fitsTheScreen() {
        m_window->setGeometry(5000, 4000, 3000, 2500);
        QVERIFY(m_window->close());
        showWindow();
        m_window->restore();
        const QRect screen = m_window->screen()->availableGeometry();
        QVERIFY(screen.contains(m_window->geometry().center()));
        QVERIFY(m_window->width() <= screen.width() && m_window->height() <= screen.height());
    }

    void startsWithAChoice() {
        const QString present = copyOf("small");
        const QString gone = copyOf("small");
        QVERIFY(m_window->openFile(present));
        QVERIFY(m_window->openFile(gone));
        QVERIFY(QFile::remove(gone));
        showWindow();
        m_window->showStartPage();
        QVERIFY(dock("problems")->isHidden());
        const auto actions = m_window->findChildren<QAction *>();
        const auto save = std::find_if(actions.begin(), actions.end(), [](const QAction *each) {
            return each->shortcut() == QKeySequence(QKeySequence::Save);
        });
        QVERIFY(!(*save)->isEnabled()); // no package is shown
        auto *recent = view<QTreeWidget>("Recent packages");
        QCOMPARE(recent->topLevelItemCount(), 2);
        QVERIFY(recent->topLevelItem(0)->isDisabled());
        QTest::mouseClick(recent->viewport(), Qt::LeftButton, {},
                          recent->visualItemRect(recent->topLevelItem(1)).center());
        QCOMPARE(m_window->document().fileName(), present);
        QVERIFY(!dock("problems")->isHidden());
        QVERIFY((*save)->isEnabled());
        QVERIFY(field("&UID:")->isVisible());

        m_window->showStartPage();
        const auto choices = m_window->findChildren<QCommandLinkButton *>();
        QTest::mouseClick(choices.at(1), Qt::LeftButton);
        QCOMPARE(field("&UID:")->text(), QStringLiteral("new-package"));
        type(QStringLiteral("own"));
        QCOMPARE(field("&UID:")->text(), QStringLiteral("own"));
    }

    void explainsEmptyLists() {
        const auto *hint = view<QTreeView>("Behaviors")->findChild<HintLabel *>();
        QVERIFY(!hint->isHidden() && !hint->text().isEmpty());
        QVERIFY(m_window->openFile(copyOf("small")));
        QVERIFY(hint->isHidden());
        const auto *details = m_window->findChild<BehaviorDetails *>();
        QVERIFY(details->findChild<QCheckBox *>()->isChecked());
        m_window->document().edit(
            {{Zel::PackageModel::Edit::Action::Remove, *Tano::FieldPath::parse("behaviors[.]")}});
        QVERIFY(!details->findChild<QCheckBox *>()->isChecked());
        QCOMPARE(details->findChild<QComboBox *>()->currentIndex(), 0);
    }

    // Choosing a language keeps the purpose, and the list of purposes follows edits.
    void purposesOfConditions() {
        QVERIFY(m_window->openFile(copyOf("ten-languages")));
        m_window->showField(QStringLiteral("behaviors[greet-visitor].conditions[suggestion][0]"));
        auto *purpose = visible<QComboBox>(&QComboBox::isEditable);
        QCOMPARE(purpose->currentText(), QStringLiteral("suggestion"));
        view<QComboBox>("Language of the texts")->setCurrentIndex(1);
        QCOMPARE(purpose->currentText(), QStringLiteral("suggestion"));
        purpose->setEditText(QStringLiteral("evening"));
        line("A new condition for this purpose")->setFocus();
        type(QStringLiteral("clock.hour > 18"));
        press(Qt::Key_Return);
        QVERIFY(purpose->findText(QStringLiteral("evening")) >= 0);
        QCOMPARE(purpose->currentText(), QStringLiteral("evening"));
        stack()->undo();
        QCOMPARE(purpose->findText(QStringLiteral("evening")), -1);
        m_window->showField(QStringLiteral("behaviors[goodbye]"));
        QCOMPARE(purpose->currentText(), QStringLiteral("launch"));
    }

    void choosesTopicFiles() {
        const QString fileName = copyOf("ten-languages");
        const QString topic = QFileInfo(fileName).dir().filePath(QStringLiteral("own.top"));
        writeTo(topic, "topic");
        QVERIFY(m_window->openFile(fileName));
        m_window->showPage(4);
        auto *topics = view<QTableView>("Topic files");
        const QModelIndex cell = topics->model()->index(0, 1);
        QVERIFY(cell.data(Qt::ToolTipRole).toString().contains(QStringLiteral("no topic file")));
        topics->setCurrentIndex(cell);
        answerInTurn({chooseFile(topic)});
        QTest::mouseClick(button("&Choose File…"), Qt::LeftButton);
        QCOMPARE(cell.data().toString(), QStringLiteral("own.top"));
        QCOMPARE(cell.data(Qt::ToolTipRole).toString(),
                 QStringLiteral("The file is beside the manifest."));
    }

    // Covers Qt's own dialogs and the names of languages.
    void speaksOneLanguage_data() {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("cancel");
        QTest::addColumn<QString>("french");
        QTest::newRow("Japanese") << "ja_JP" << QString::fromUtf8("キャンセル")
                                  << QString::fromUtf8("フランス語 (フランス)");
        QTest::newRow("no catalogue") << "de_DE"
                                      << "Cancel"
                                      << "French (France)";
    }
    void speaksOneLanguage() {
        QFETCH(QString, locale);
        installTexts(QLocale(locale));
        const QDialogButtonBox box(QDialogButtonBox::Cancel);
        QTEST(box.buttons().first()->text().remove(u'&'), "cancel");
        showWindow();
        QVERIFY(m_window->openFile(copyOf("small")));
        QAbstractItemModel *languages = nullptr;
        for (const auto *table : m_window->findChildren<QTableView *>()) {
            if (table->model()->columnCount() == 6)
                languages = table->model();
        }
        QTEST(languages->index(1, 0).data().toString(), "french");
    }

private:
    static QString sample(const char *name) {
        return QStringLiteral(ZEL_SOURCE_DIR "/examples/packages/%1/manifest.xml")
            .arg(QLatin1String(name));
    }

    using Answering = std::function<void(QDialog *)>;

    // Each function handles the next modal dialog.
    void answerInTurn(std::vector<Answering> answers) {
        m_answers = std::move(answers);
        QTimer::singleShot(0, this, &TestEditorWindow::answerNext);
    }
    void answerNext() {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog && !m_answers.empty());
        const Answering answer = m_answers.front();
        m_answers.erase(m_answers.begin());
        if (!m_answers.empty())
            QTimer::singleShot(0, this, &TestEditorWindow::answerNext);
        answer(dialog);
    }
    static Answering chooseFile(const QString &fileName) {
        return
            [fileName](QDialog *dialog) { choose(fileName)(qobject_cast<QFileDialog *>(dialog)); };
    }
    // Records the texts of the box.
    static Answering pressButton(QStringList &shown, QMessageBox::ButtonRole role) {
        return [&shown, role](QDialog *dialog) {
            auto *box = qobject_cast<QMessageBox *>(dialog);
            shown.append(box->text() + box->informativeText());
            const auto buttons = box->buttons();
            const auto wanted =
                std::find_if(buttons.begin(), buttons.end(), [&](QAbstractButton *button) {
                    return box->buttonRole(button) == role;
                });
            QVERIFY(wanted != buttons.end());
            (*wanted)->click();
        };
    }
    QDockWidget *dock(const char *name) {
        return m_window->findChild<QDockWidget *>(QLatin1String(name));
    }

    // Presses Tab until the focus returns to its start; returns a line for each stop.
    QString walk() {
        auto *start = view<QListWidget>("Pages");
        start->setFocus();
        QString stops;
        for (int i = 0; i < 60; ++i) {
            QWidget *stop = QApplication::focusWidget();
            stops += nameOf(stop) + QStringLiteral(" (") + roleOf(stop) + QStringLiteral(")\n");
            if (nameOf(stop).isEmpty())
                return stops + QLatin1String(stop->metaObject()->className()) +
                       QStringLiteral(" has no name\n");
            QTest::keyClick(stop, Qt::Key_Tab);
            if (QApplication::focusWidget() == start)
                return stops;
        }
        return stops + QStringLiteral("does not come back\n");
    }

    static QString sharedMnemonics(const QStringList &texts) {
        QString shared;
        QMap<QString, QString> textOf;
        for (const QString &text : texts) {
            const QString key = QKeySequence::mnemonic(text).toString();
            if (!key.isEmpty() && textOf.contains(key))
                shared += text + u'/' + textOf.value(key) + u' ';
            textOf.insert(key, text);
        }
        return shared;
    }

    // The WCAG contrast between the lightest and the darkest pixel.
    static double contrast(QWidget &widget) {
        const QImage image = widget.grab().toImage();
        double lightest = 0;
        double darkest = 1;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor color = image.pixelColor(x, y);
                const double light = 0.2126 * std::pow(color.redF(), 2.2) +
                                     0.7152 * std::pow(color.greenF(), 2.2) +
                                     0.0722 * std::pow(color.blueF(), 2.2);
                lightest = std::max(lightest, light);
                darkest = std::min(darkest, light);
            }
        }
        return (lightest + 0.05) / (darkest + 0.05);
    }

    // Clicks the visible button with this text.
    void clickButton(const QString &text) {
        for (auto *candidate : shownPage()->findChildren<QPushButton *>()) {
            if (candidate->text() == text && candidate->isVisible())
                QTest::mouseClick(candidate, Qt::LeftButton);
        }
    }
    QWidget *shownPage() {
        const auto *stack = m_window->findChild<PageStack *>();
        return stack->pages().at(stack->current());
    }

    std::vector<Answering> m_answers;
};

QTEST_MAIN(TestEditorWindow)
#include "tst_editor_window.moc"
