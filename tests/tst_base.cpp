#include "table_file.h"

#include <tano/log.h>
#include <tano/path.h>

#include <QDir>
#include <QLoggingCategory>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <array>
#include <future>

using Tano::log::Level;

namespace {

QStringList lines; // "type category text" of each message in the current test

void record(QtMsgType type, const QMessageLogContext &context, const QString &text) {
    lines.append(qFormatLogMessage(type, context, text));
}

QStringList texts(const std::vector<std::string> &list) {
    QStringList result;
    for (const std::string &text : list)
        result.append(QString::fromStdString(text));
    return result;
}

} // namespace

class TestBase : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QStandardPaths::setTestModeEnabled(true);
        qSetMessagePattern(QStringLiteral("%{type} %{category} %{message}"));
    }

    void init() {
        m_home.reset(new QTemporaryDir);
        QVERIFY(m_home->isValid());
        const QByteArray home = m_home->path().toLocal8Bit();
        qputenv("HOME", home);
        qputenv("XDG_DATA_DIRS", home + "/system1:" + home + "/system2");
        qunsetenv("ZENTRIX_DATA_PATH");
        QLoggingCategory::setFilterRules(QString());
        lines.clear();
        m_previous = qInstallMessageHandler(record);
    }

    void cleanup() { qInstallMessageHandler(m_previous); }

    void levels_data() { addRowsOf("base/levels.json"); }

    void levels() {
        QFETCH(const int, level);
        const auto written = [&] {
            const bool isEnabled = Tano::log::isEnabled("Test.Levels", Level(level));
            Tano::log::write("Test.Levels", Level(level), "load", QStringLiteral("50% \"é\" "));
            const QStringList all = std::exchange(lines, {});
            return isEnabled == all.isEmpty() ? QStringLiteral("undecided") : all.join(u'|');
        };
        QTEST(written(), "byDefault");
        QLoggingCategory::setFilterRules(QStringLiteral("Test.Levels.debug=true"));
        QTEST(written(), "withDebug");
    }

    void verboseIsComposedOnlyWhenEnabled() {
        const auto log = [] {
            bool isComposed = false;
            Tano::log::verbose("Test.Verbose", "build", [&] {
                isComposed = true;
                return QStringLiteral("one family");
            });
            return isComposed;
        };
        QVERIFY(!log());
        QLoggingCategory::setFilterRules(QStringLiteral("Test.Verbose.debug=true"));
        QVERIFY(log());
        QCOMPARE(lines, QStringList(QStringLiteral("debug Test.Verbose build: one family")));
    }

    void categoryNamesAreCopied() {
        QByteArray name = "Test.First";
        Tano::log::error(name.constData(), "op", QStringLiteral("1"));
        name.replace("First", "Other");
        Tano::log::error(name.constData(), "op", QStringLiteral("2"));
        Tano::log::error("Test.First", "op", QStringLiteral("3"));
        QCOMPARE(lines.join(u'|'),
                 QStringLiteral("critical Test.First op: 1|critical Test.Other op: 2|"
                                "critical Test.First op: 3"));
    }

    void categoriesAreSharedByThreads() {
        const auto count = [] {
            int enabled = 0;
            for (int i = 0; i < 500; ++i) {
                const QByteArray name = "Test.Thread" + QByteArray::number(i % 50);
                enabled += Tano::log::isEnabled(name.constData(), Level::Error) ? 1 : 0;
            }
            return enabled;
        };
        std::array<std::future<int>, 4> counts;
        for (auto &each : counts)
            each = std::async(std::launch::async, count);
        for (auto &each : counts)
            QCOMPARE(each.get(), 500);
    }

    void directoriesInOrder() {
        const QString first = made(QStringLiteral("first"));
        const QString second = made(QStringLiteral("second"));
        const QString system1 = made(QStringLiteral("system1/zentrix"));
        const QString system2 = made(QStringLiteral("system2/zentrix"));
        const QString own = made(user());
        // A duplicate, a missing directory, an empty entry, and a relative one.
        const QString relative = QDir::current().relativeFilePath(second);
        qputenv("ZENTRIX_DATA_PATH",
                QString(first % u":/missing::" % relative % u':' % first).toUtf8());

        const QString beside = QFileInfo(QStringLiteral(ZEL_BINARY_DIR)).canonicalFilePath() %
                               QLatin1String("/share/zentrix");
        QCOMPARE(texts(Tano::path::dataDirectories("zentrix", false)),
                 QStringList({first, second, own, system1, system2, beside}));
        QCOMPARE(texts(Tano::path::dataDirectories("zentrix", true)),
                 QStringList({first, second, system1, system2, beside}));
        QCOMPARE(texts(Tano::path::dataDirectories("otherapp", false)), QStringList());
        QCOMPARE(texts(Tano::path::environmentDirectories("zentrix").value()),
                 QStringList({first, second}));
        QVERIFY(!Tano::path::environmentDirectories("otherapp"));
        qputenv("ZENTRIX_DATA_PATH", {});
        QVERIFY(Tano::path::environmentDirectories("zentrix").value().empty());
    }

    void finds_data() { addRowsOf("base/found.json"); }

    // The first directory wins, and files outside the directories are not found.
    void finds() {
        QFETCH(const QString, application);
        QFETCH(const QString, path);
        QFETCH(const int, excludeUser);
        QFETCH(QString, found);
        made(user(), QStringLiteral("a.json"));
        made(QStringLiteral("system2/zentrix"), QStringLiteral("a.json"));
        made(QStringLiteral("system1/zentrix/robots"));
        made(QStringLiteral("system1"), QStringLiteral("secret"));
        made(QStringLiteral("system1/zentrix"), QStringLiteral("inside"));
        if (!found.isEmpty())
            found =
                QDir(m_home->path()).absoluteFilePath(found.replace(QLatin1String("USER"), user()));
        QCOMPARE(QString::fromStdString(Tano::path::findData(application.toStdString(),
                                                             path.toStdString(), excludeUser == 1)),
                 found);
    }

private:
    /// Creates a directory in the test's home, optionally with a file, and returns its path.
    QString made(const QString &name, const QString &file = {}) const {
        const QDir directory(QDir(m_home->path()).absoluteFilePath(name));
        QFile made(directory.filePath(file));
        if (!directory.mkpath(QStringLiteral(".")) ||
            (!file.isEmpty() && !made.open(QIODevice::WriteOnly)))
            qFatal("cannot make %s", qPrintable(made.fileName()));
        return directory.path();
    }

    QString user() const {
        return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) %
               QLatin1String("/zentrix");
    }

    QScopedPointer<QTemporaryDir> m_home;
    QtMessageHandler m_previous = nullptr;
};

QTEST_GUILESS_MAIN(TestBase)
#include "tst_base.moc"
