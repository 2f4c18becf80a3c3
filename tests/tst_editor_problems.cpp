#include "editor_test.h"
#include "models/problems_model.h"
#include "table_file.h"

#include <QAction>
#include <QBuffer>
#include <QClipboard>
#include <QHeaderView>
#include <QImage>
#include <QProcess>
#include <QStatusBar>
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

    // A third click restores the order of the checks.
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
        const QStringList checks = column(ProblemsModel::PathRole);
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
        QCOMPARE(column(ProblemsModel::PathRole), checks);
        clickHeader(section);
        QVERIFY(column(ProblemsModel::PathRole) != checks);
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

        QVERIFY(m_window->openFile(copyOf("faulty")));
        QVERIFY(document.save(m_directory.filePath(QStringLiteral("elsewhere.xml"))));
        QCOMPARE(problemCount(), m_count - 1); // there is no icon
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
