#include "editor_test.h"
#include "golden.h"
#include "models/problems_model.h"
#include "table_file.h"
#include "widgets/icon_button.h"

#include <QAction>
#include <QBuffer>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QImage>
#include <QListView>
#include <QProcess>
#include <QStatusBar>
#include <QTableView>
#include <QToolButton>

using Editor::ProblemsModel;

class TestEditorProblems : public QObject, EditorTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare(); }
    void init() {
        showWindow();
        m_file = copyOf("faulty");
        QVERIFY(m_window->openFile(m_file));
        m_count = problemCount();
    }
    void cleanup() { closeWindow(); }

    void filters_data() { addRowsOf("editor/problem-filters.json"); }
    void filters() {
        QFETCH(QString, text);
        QFETCH(QStringList, hidden); // severities
        line("Filter problems")->setFocus();
        type(text);
        for (const QString &severity : std::as_const(hidden))
            QTest::mouseClick(view<QToolButton>(qPrintable(severity)), Qt::LeftButton);
        QTEST(column(ProblemsModel::RuleRole), "rules");
        line("Filter problems")->clear();
        for (const QString &severity : std::as_const(hidden))
            QTest::mouseClick(view<QToolButton>(qPrintable(severity)), Qt::LeftButton);
        QCOMPARE(problemCount(), m_count);
    }

    // Errors first, then in the order of the pages; entries in the order of their lists.
    void readLikeThePages() {
        QString shown;
        for (int row = 0; row < problemCount(); ++row)
            shown += QStringLiteral("%1 %2\n").arg(column(Qt::DisplayRole).at(row), shownPath(row));
        COMPARE_WITH_GOLDEN(QStringLiteral(ZEL_TEST_DATA "/editor/problem-order.txt"),
                            shown.toUtf8());
        press(Qt::Key_F8);
        press(Qt::Key_F8, Qt::ShiftModifier);
        QCOMPARE(problems()->currentIndex().row(), problemCount() - 1);
    }

    // A third click restores the usual order.
    void sorts_data() {
        QTest::addColumn<int>("role");
        QTest::addColumn<int>("section");
        QTest::newRow("severity") << int(ProblemsModel::SeverityRole)
                                  << int(ProblemsModel::Severity);
        QTest::newRow("field") << int(Qt::DisplayRole) << int(ProblemsModel::Field);
    }
    void sorts() {
        QFETCH(int, role);
        QFETCH(int, section);
        const QStringList usual = column(ProblemsModel::PathRole);
        QStringList expected = column(role, section);
        std::sort(expected.begin(), expected.end(), [](const QString &a, const QString &b) {
            return QString::localeAwareCompare(a.toLower(), b.toLower()) < 0;
        });
        if (role == ProblemsModel::SeverityRole)
            std::reverse(expected.begin(), expected.end()); // the worst first
        clickHeader(section);
        QCOMPARE(column(role, section), expected);
        clickHeader(section);
        std::reverse(expected.begin(), expected.end());
        QCOMPARE(column(role, section), expected);
        const QString path = shownPath(0);
        press(Qt::Key_F8); // in the order of the list
        QCOMPARE(problems()->currentIndex().data(ProblemsModel::PathRole).toString(), path);
        clickHeader(section);
        QCOMPARE(column(ProblemsModel::PathRole), usual);
        clickHeader(section);
        QCOMPARE(column(role, section).first(), expected.last());
    }

    // As the program reports the file that is open or, after an edit, the one that is saved.
    void copiesWhatValidatePrints() {
        // Another spelling of the same content has other places.
        writeTo(m_file, contentOf(m_file).replace("?>", "?>\n\n\n"));
        QVERIFY(m_window->openFile(m_file));
        QCOMPARE(copied(), validated());
        m_window->showField(QStringLiteral("author"));
        replaceText(QStringLiteral("Ada"));
        const QStringList lines = copied();
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(lines, validated());
    }

    void ignores() {
        const QByteArray before = manifest();
        problems()->setFocus();
        problems()->setCurrentIndex(problems()->model()->index(0, 0));
        press(Qt::Key_Down, Qt::ShiftModifier);
        const QStringList rules = column(ProblemsModel::RuleRole).mid(0, 2);
        for (QAction *action : problems()->actions()) {
            if (isSame(action->text(), "Ignore"))
                action->trigger();
        }
        QCOMPARE(problemCount(), m_count - 2);
        QCOMPARE(column(ProblemsModel::RuleRole).mid(0, 2) == rules, false);
        QCOMPARE(stack()->count(), 1);

        press(Qt::Key_F8);
        problems()->clearSelection();
        const QString path = problems()->currentIndex().data(ProblemsModel::PathRole).toString();
        QTest::mouseClick(button("Ignore"), Qt::LeftButton);
        QVERIFY(!column(ProblemsModel::PathRole).contains(path));
        QCOMPARE(stack()->count(), 2);
        m_window->showField(QStringLiteral("author"));
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(copied(), validated());
        stack()->undo();
        stack()->undo();
        QCOMPARE(manifest(), before);
        QCOMPARE(problemCount(), m_count);
    }

    void followFilesThatAreSaved() {
        auto &document = m_window->document();
        QImage icon(2, 2, QImage::Format_ARGB32);
        icon.fill(Qt::red);
        QBuffer png;
        icon.save(&png, "PNG");
        QVERIFY(column(ProblemsModel::RuleRole).contains(QStringLiteral("icon-invalid")));
        document.setIcon(png.data());
        QVERIFY(document.save(m_file));
        QVERIFY(!column(ProblemsModel::RuleRole).contains(QStringLiteral("icon-invalid")));
        const QString written = QFileInfo(m_file).dir().filePath(QStringLiteral("icon.png"));
        QVERIFY(QFile::remove(written));
        QVERIFY(document.save(m_file));
        QVERIFY(QFile::exists(written));

        QVERIFY(m_window->openFile(copyOf("faulty")));
        QVERIFY(document.save(m_directory.filePath(QStringLiteral("elsewhere.xml"))));
        QCOMPARE(problemCount(), m_count - 1); // there is no icon
    }

    // The lists and tabs in which the fields at fault are.
    void areMarkedInPlace() {
        m_window->showField(QStringLiteral("behaviors[patrol].permissions[1]"));
        enum { Sentences = 1, Tags = 3, Permissions = 5 };
        QVERIFY(!tabs()->tabIcon(Sentences).isNull());
        QVERIFY(tabs()->tabIcon(Tags).isNull());
        QVERIFY(!tabs()->tabIcon(Permissions).isNull());
        const auto *permissions = view<QListView>("Permissions")->model();
        QVERIFY(permissions->index(0, 0).data(Qt::BackgroundRole).isNull());
        QVERIFY(!permissions->index(1, 0).data(Qt::BackgroundRole).isNull());
        m_window->showField(QStringLiteral("behaviors[listen].nature"));
        QVERIFY(tabs()->tabIcon(Sentences).isNull());
        QVERIFY(label("Unknown nature 'solitry'"));
        auto *nature = qobject_cast<QComboBox *>(QApplication::focusWidget());
        QCOMPARE(nature->currentText(), QStringLiteral("solitry"));
        m_window->showField(QStringLiteral("behaviors[all-clear].nature"));
        QVERIFY(!label("Unknown nature 'solitry'"));
        QCOMPARE(nature->count(), 3);
        const auto *services = view<QTableView>("Services")->model();
        QVERIFY(services->index(0, 0).data(Qt::BackgroundRole).isNull());
        QVERIFY(!services->index(1, 0).data(Qt::BackgroundRole).isNull());
        const auto *dialogs = view<QListView>("Dialogs")->model();
        QVERIFY(!dialogs->index(0, 0).data(Qt::DecorationRole).isNull());
        const auto *languages = view<QTableView>("Languages and texts")->model();
        QVERIFY(languages->index(0, 0).data(Qt::BackgroundRole).isNull());
        QVERIFY(!languages->index(3, 0).data(Qt::BackgroundRole).isNull()); // unknown
        QVERIFY(m_window->openFile(copyOf("unfinished")));
        m_window->showField(QStringLiteral("supportedLanguages"));
        QVERIFY(label("No supported language is defined."));
    }

    // The next problem is shown above another dock in the same place.
    void comeToTheFront() {
        press(Qt::Key_F, Qt::ControlModifier);
        QVERIFY(problems()->visibleRegion().isEmpty());
        press(Qt::Key_F8);
        QTRY_VERIFY(!problems()->visibleRegion().isEmpty());
    }

    // Another program writes files beside the manifest while the window is in the background.
    void followFilesOfOtherPrograms() {
        const QDir folder(QFileInfo(m_file).dir());
        folder.mkpath(QStringLiteral("dialogs"));
        const auto &document = m_window->document();
        const auto rules = [&] {
            QEvent activation(QEvent::WindowActivate);
            QApplication::sendEvent(m_window.get(), &activation);
            return column(ProblemsModel::RuleRole);
        };
        QVERIFY(rules().contains(QStringLiteral("topic-file-missing")));
        writeTo(folder.filePath(QStringLiteral("night-talk_enu.top")), "topic: ~night-talk()");
        QVERIFY(!rules().contains(QStringLiteral("topic-file-missing")));
        QImage icon(2, 2, QImage::Format_ARGB32);
        for (const QColor &color : {QColor(Qt::red), QColor(Qt::blue)}) {
            icon.fill(color);
            QVERIFY(icon.save(folder.filePath(QStringLiteral("icon.png"))));
            QFile file(folder.filePath(QStringLiteral("icon.png")));
            QVERIFY(file.open(QIODevice::ReadWrite)); // in the same millisecond
            QVERIFY(file.setFileTime(QDateTime(QDate(2026, 9, color.blue() / 255 + 1), QTime()),
                                     QFileDevice::FileModificationTime));
            QVERIFY(!rules().contains(QStringLiteral("icon-invalid")));
            QCOMPARE(document.package()->icon().pixmap(2).toImage().pixelColor(0, 0), color);
        }
        QVERIFY(!document.pendingIcon());
        QVERIFY(!document.isModified());
        QVERIFY(QFile::remove(folder.filePath(QStringLiteral("icon.png"))));
        rules();
        QVERIFY(document.package()->icon().isNull());

        icon.fill(Qt::green); // edited here, so that one of another program is not shown
        QBuffer png;
        icon.save(&png, "PNG");
        m_window->document().setIcon(png.data());
        icon.fill(Qt::red);
        QVERIFY(icon.save(folder.filePath(QStringLiteral("icon.png"))));
        rules();
        QCOMPARE(document.package()->icon().pixmap(2).toImage().pixelColor(0, 0),
                 QColor(Qt::green));
        QVERIFY(m_window->findChild<Editor::IconButton *>()->fileState().startsWith(
            QStringLiteral("Saving writes")));
    }

    // The number in the status bar, the hint in the list and that beside it.
    void areSummarized() {
        const auto *count = m_window->statusBar()->findChild<QToolButton *>();
        QCOMPARE(count->text(), QStringLiteral("Errors: 19, warnings: 13, notes: 1"));
        QVERIFY(label("The explanation of the selected"));
        press(Qt::Key_F8);
        QVERIFY(!label("The explanation of the selected"));
        QVERIFY(label("Application UID is not defined correctly."));
        line("Filter problems")->setText(QStringLiteral("nothing"));
        QVERIFY(label("The filter above hides all problems."));
        QVERIFY(label("The explanation of the selected"));
        QVERIFY(m_window->openFile(copyOf("small")));
        QTRY_VERIFY(label("The package has no problems."));
        QCOMPARE(count->text(), QStringLiteral("No problems"));
    }

    // Issues of a rule in one element, whose number changes.
    void equalProblems() {
        int added = 0;
        for (const char *elements : {"<foo/>", "<foo/><bar/><baz/>"}) {
            Tano::PackageInfo record;
            QVERIFY(record.loadFromManifestContent(
                contentOf(m_file)
                    .replace("</package>", QByteArray(elements).append("</package>"))
                    .toStdString()));
            m_window->document().edit({{Zel::PackageModel::Edit::Action::Set, {}, record}});
            added = added == 0 ? 1 : 3;
            QCOMPARE(problemCount(), m_count + added);
        }
        stack()->undo();
        QCOMPARE(problemCount(), m_count + 1);
    }

    void canBeFixedBesideTheStartPage() {
        showWindow();
        m_window->showStartPage();
        m_window->findChild<QWidget *>(QStringLiteral("problems"))->show();
        problems()->setCurrentIndex(problems()->model()->index(0, 0));
        QTest::mouseClick(button("Ignore"), Qt::LeftButton);
        QCOMPARE(stack()->count(), 1);
        QVERIFY(m_window->isWindowModified());
        QVERIFY(m_window->statusBar()->isVisible());
    }

private:
    // A visible label that begins with a text.
    const QLabel *label(const char *start) {
        for (const QLabel *candidate : m_window->findChildren<QLabel *>()) {
            if (candidate->isVisible() && candidate->text().startsWith(QLatin1String(start)))
                return candidate;
        }
        return nullptr;
    }
    QString shownPath(int row) {
        return problems()->model()->index(row, 0).data(ProblemsModel::PathRole).toString();
    }
    QStringList column(int role, int section = 0) {
        QStringList texts;
        for (int row = 0; row < problemCount(); ++row)
            texts += problems()->model()->index(row, section).data(role).toString();
        return texts;
    }
    void clickHeader(int section) {
        QHeaderView *header = problems()->header();
        const QPoint place(header->sectionViewportPosition(section) + 20, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
    }
    // All problems, by place.
    QStringList copied() {
        problems()->setFocus();
        problems()->selectAll();
        press(Qt::Key_C, Qt::ControlModifier);
        QStringList lines = QGuiApplication::clipboard()->text().split(u'\n');
        lines.sort();
        return lines;
    }
    QStringList validated() {
        QProcess validate;
        validate.start(QStringLiteral(ZEL_PACKAGE_PROGRAM), {QStringLiteral("validate"), m_file});
        if (!validate.waitForFinished())
            return {};
        QStringList lines =
            QString::fromUtf8(validate.readAllStandardOutput()).trimmed().split(u'\n');
        lines.sort();
        return lines;
    }

    QString m_file;
    int m_count = 0;
};

QTEST_MAIN(TestEditorProblems)
#include "tst_editor_problems.moc"
