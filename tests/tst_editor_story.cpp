#include "document/recovery.h"
#include "editor_test.h"
#include "models/translation_model.h"
#include "widgets/text_pair.h"

#include <QAction>
#include <QComboBox>
#include <QCommandLinkButton>
#include <QProcess>

#include <csignal>

using Editor::TextPair;
using Editor::TranslationModel;

namespace {

constexpr const char *authorVariable = "ZEL_STORY_STATE";

} // namespace

// From the first start to a package without problems, with a crash in between.
class TestEditorStory : public QObject, EditorTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare(); }
    void cleanup() { closeWindow(); }

    // The part before the crash runs in another process of this program.
    void story() {
        if (qEnvironmentVariableIsSet(authorVariable)) {
            write(qEnvironmentVariable(authorVariable));
            return;
        }
        const QString state = m_directory.filePath(QStringLiteral("state"));
        QProcess author;
        author.setProcessChannelMode(QProcess::MergedChannels);
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QLatin1String(authorVariable), state);
        author.setProcessEnvironment(environment);
        author.start(QCoreApplication::applicationFilePath(), {});
        QVERIFY(author.waitForFinished(60000));
        QVERIFY2(author.exitStatus() == QProcess::CrashExit, author.readAll().constData());

        showStart(state);
        const Answer recover(click(QStringLiteral("Recover")));
        m_window->offerLeftovers();
        QVERIFY(recover.isGiven());
        QTRY_COMPARE(found(), QString());
        QVERIFY(m_window->isWindowModified());
        const QString file = m_directory.filePath(QStringLiteral("manifest.xml"));
        m_window->showField(QStringLiteral("author"));
        focus();
        const Answer save(choose(file));
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!m_window->isWindowModified());

        QProcess validate;
        validate.start(QStringLiteral(ZEL_PACKAGE_PROGRAM), {QStringLiteral("validate"), file});
        QVERIFY(validate.waitForFinished());
        QCOMPARE(validate.readAllStandardOutput(), QByteArray());
        QCOMPARE(validate.exitCode(), 0);
        const QByteArray saved = contentOf(file);
        QCOMPARE(saved.count("<texts language="), 8); // of the package and its behavior
        for (int i = 1; i <= 10; ++i)
            QVERIFY2(saved.contains(QByteArray(">Text " + QByteArray::number(i) + '<')),
                     saved.constData());
    }

    // What a template is left without is for its author to choose.
    void templatesNeedRequirementsOnly() {
        showWindow();
        for (const char *name : {"behavior", "service"}) {
            const QString file = QStringLiteral(":/templates/%1.xml").arg(QLatin1String(name));
            QVERIFY(m_window->document().openTemplate(contentOf(file)));
            QCOMPARE(found(), QStringLiteral("robot-requirements-missing"));
        }
    }

private:
    void showStart(const QString &state) {
        showWindow();
        m_window->keepEditsIn(state);
        m_window->recovery()->setDelay(std::chrono::milliseconds(0));
        m_window->showStartPage();
    }

    void write(const QString &state) {
        showStart(state);
        for (auto *entry : m_window->findChildren<QCommandLinkButton *>()) {
            if (entry->text() == QStringLiteral("Behavior Started by a Sentence"))
                entry->click();
        }
        m_window->showPage(1);
        for (const char *name : {"French (France)", "German", "Italian"}) {
            const Answer language(std::function<void(QDialog *)>([name](QDialog *dialog) {
                dialog->findChild<QLineEdit *>()->setText(QLatin1String(name));
                dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->click();
            }));
            button("Add Language…")->click();
            QVERIFY(language.isGiven());
        }
        m_window->showPage(2);
        button("Add Robot")->click();
        press(Qt::Key_Down);
        press(Qt::Key_Return);
        m_window->showField(QStringLiteral("date"));
        type(QStringLiteral("2026/9/4"));
        translate();
        fixAllSafe();
        QCOMPARE(found(), QString());
        const QString date = QStringLiteral("2026-09-04");
        QCOMPARE(m_window->document().package()->date(), date);
        QTRY_VERIFY(keptEdits(state).contains(date.toUtf8()));
        m_directory.remove();
        std::raise(SIGKILL);
    }

    QString found() {
        QStringList rules;
        for (const auto &issue : m_window->document().issues())
            rules += issue.id;
        return rules.join(u' ');
    }
    static QByteArray keptEdits(const QString &state) {
        const QDir folder(state);
        return contentOf(folder.filePath(folder.entryList({QStringLiteral("*.json")}).value(0)));
    }

    // Twelve texts, the last two by copying.
    void translate() {
        m_window->showPage(6);
        auto *pair = m_window->findChild<TextPair *>();
        auto *texts = m_window->findChild<TranslationModel *>();
        auto *language = view<QComboBox>("Target language");
        int count = 0;
        for (int i = 0; i < 3; ++i) {
            language->setFocus();
            if (i > 0)
                press(Qt::Key_Down);
            QTRY_VERIFY(!texts->isLoading());
            pair->target()->setFocus();
            for (int text = 0; text < 4; ++text) {
                if (++count > 10)
                    button("&Copy Source")->click();
                else
                    type(QStringLiteral("Text %1").arg(count));
                press(Qt::Key_Return, Qt::ControlModifier);
            }
        }
    }

    void fixAllSafe() {
        QVERIFY(problemCount() > 0);
        for (QAction *action : m_window->findChildren<QAction *>()) {
            if (isSame(action->text(), "Fix All Safe Problems"))
                action->trigger();
        }
    }
};

QTEST_MAIN(TestEditorStory)
#include "tst_editor_story.moc"
