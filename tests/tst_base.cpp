#include <tano/log.h>
#include <tano/path.h>

#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QStandardPaths>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#include <thread>

using Tano::log::Level;
Q_DECLARE_METATYPE(Level)

namespace {

QStringList lines; // "type category text" of each message since the test began

void record(QtMsgType type, const QMessageLogContext &context, const QString &text) {
    static const QHash<int, QString> names = {{QtDebugMsg, QStringLiteral("debug")},
                                              {QtInfoMsg, QStringLiteral("info")},
                                              {QtWarningMsg, QStringLiteral("warning")},
                                              {QtCriticalMsg, QStringLiteral("critical")},
                                              {QtFatalMsg, QStringLiteral("fatal")}};
    lines.append(names.value(type) % QLatin1Char(' ') % QString::fromUtf8(context.category) %
                 QLatin1Char(' ') % text);
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
    void initTestCase();
    void init();
    void cleanup();

    void levels_data();
    void levels();
    void verboseIsComposedOnlyWhenEnabled();
    void rulesFilterOneCategory();
    void categoryNamesAreCopied();
    void categoriesAreSharedByThreads();

    void directoriesInOrder();
    void ownDataAreFound();
    void firstDirectoryWins();
    void refusedPaths_data();
    void refusedPaths();

private:
    QString made(const QString &directory, const QString &file = {}) const;
    QString user() const;

    QScopedPointer<QTemporaryDir> m_home;
    QtMessageHandler m_previous = nullptr;
};

void TestBase::initTestCase() {
    QStandardPaths::setTestModeEnabled(true);
}

void TestBase::init() {
    m_home.reset(new QTemporaryDir);
    QVERIFY(m_home->isValid());
    const auto setPath = [this](const char *variable, const char *paths) {
        const QString value = QString::fromLatin1(paths).replace(QLatin1Char('~'), m_home->path());
        qputenv(variable, value.toLocal8Bit());
    };
    setPath("HOME", "~");
    setPath("XDG_DATA_DIRS", "~/system1:~/system2");
    qunsetenv("ZENTRIX_DATA_PATH");
    QLoggingCategory::setFilterRules(QString());
    lines.clear();
    m_previous = qInstallMessageHandler(record);
}

void TestBase::cleanup() {
    qInstallMessageHandler(m_previous);
}

/// Makes a directory under the test's home, and in it a file where one is named; gives its path.
QString TestBase::made(const QString &directory, const QString &file) const {
    QString path = QDir::cleanPath(QDir(m_home->path()).absoluteFilePath(directory));
    if (!QDir().mkpath(path))
        return {};
    if (file.isEmpty())
        return path;
    QFile made(path % QLatin1Char('/') % file);
    return made.open(QIODevice::WriteOnly) ? made.fileName() : QString();
}

QString TestBase::user() const {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) %
           QLatin1String("/zentrix");
}

void TestBase::levels_data() {
    QTest::addColumn<Level>("level");
    QTest::addColumn<QStringList>("byDefault");
    QTest::addColumn<QStringList>("withDebug");
    const auto row = [](const char *name, Level level, const QStringList &byDefault,
                        const QStringList &withDebug) {
        QTest::newRow(name) << level << byDefault << withDebug;
    };
    const QStringList critical = {QStringLiteral("critical Test.Levels load: 50% \"é\" ")};
    const QStringList warning = {QStringLiteral("warning Test.Levels load: 50% \"é\" ")};
    const QStringList info = {QStringLiteral("info Test.Levels load: 50% \"é\" ")};
    const QStringList debug = {QStringLiteral("debug Test.Levels load: 50% \"é\" ")};
    row("silent", Level::Silent, {}, {});
    row("fatal", Level::Fatal, critical, critical);
    row("error", Level::Error, critical, critical);
    row("warning", Level::Warning, warning, warning);
    row("info", Level::Info, info, info);
    row("verbose", Level::Verbose, {}, debug);
    row("debug", Level::Debug, {}, debug);
    row("beyond the scale", static_cast<Level>(7), {}, {});
    row("below the scale", static_cast<Level>(-1), {}, {});
}

void TestBase::levels() {
    QFETCH(const Level, level);
    QFETCH(const QStringList, byDefault);
    QFETCH(const QStringList, withDebug);
    const QString message = QStringLiteral("50% \"é\" ");

    QCOMPARE(Tano::log::isEnabled("Test.Levels", level), !byDefault.isEmpty());
    Tano::log::write("Test.Levels", level, "load", message);
    QCOMPARE(lines, byDefault);

    lines.clear();
    QLoggingCategory::setFilterRules(QStringLiteral("Test.Levels.debug=true"));
    QCOMPARE(Tano::log::isEnabled("Test.Levels", level), !withDebug.isEmpty());
    Tano::log::write("Test.Levels", level, "load", message);
    QCOMPARE(lines, withDebug);
}

void TestBase::verboseIsComposedOnlyWhenEnabled() {
    int composed = 0;
    const auto compose = [&composed] {
        ++composed;
        return QStringLiteral("one family");
    };
    Tano::log::verbose("Test.Verbose", "build", compose);
    QCOMPARE(composed, 0);

    QLoggingCategory::setFilterRules(QStringLiteral("Test.Verbose.debug=true"));
    Tano::log::verbose("Test.Verbose", "build", compose);
    QCOMPARE(composed, 1);
    QCOMPARE(lines, QStringList(QStringLiteral("debug Test.Verbose build: one family")));
}

void TestBase::rulesFilterOneCategory() {
    QLoggingCategory::setFilterRules(QStringLiteral("Test.Quiet.critical=false"));
    Tano::log::error("Test.Quiet", "save", QStringLiteral("lost"));
    Tano::log::error("Test.Loud", "save", QStringLiteral("kept"));
    QCOMPARE(lines, QStringList(QStringLiteral("critical Test.Loud save: kept")));
}

void TestBase::categoryNamesAreCopied() {
    QByteArray name = "Test.First";
    Tano::log::error(name.constData(), "op", QStringLiteral("1"));
    name.replace("First", "Other");
    Tano::log::error(name.constData(), "op", QStringLiteral("2"));
    Tano::log::error("Test.First", "op", QStringLiteral("3"));
    QCOMPARE(lines, QStringList({QStringLiteral("critical Test.First op: 1"),
                                 QStringLiteral("critical Test.Other op: 2"),
                                 QStringLiteral("critical Test.First op: 3")}));
}

void TestBase::categoriesAreSharedByThreads() {
    std::vector<int> enabled(4);
    std::vector<std::thread> threads;
    threads.reserve(enabled.size());
    for (int &count : enabled) {
        threads.emplace_back([&count] {
            for (int i = 0; i < 500; ++i) {
                const QByteArray name = "Test.Thread" + QByteArray::number(i % 50);
                count += Tano::log::isEnabled(name.constData(), Level::Error) ? 1 : 0;
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(enabled, std::vector<int>(4, 500));
}

void TestBase::directoriesInOrder() {
    const QString first = made(QStringLiteral("first"));
    const QString second = made(QStringLiteral("second"));
    const QString system1 = made(QStringLiteral("system1/zentrix"));
    const QString system2 = made(QStringLiteral("system2/zentrix"));
    const QString own = made(user());
    const QString missing = m_home->filePath(QStringLiteral("missing"));
    // Twice the same, one that is not there, an empty entry, and a relative one.
    const QString relative = QDir::current().relativeFilePath(second);
    qputenv(
        "ZENTRIX_DATA_PATH",
        QStringList({first, missing, QString(), relative, first}).join(QLatin1Char(':')).toUtf8());

    QStringList all = texts(Tano::path::dataDirectories("zentrix", false));
    QVERIFY(!all.isEmpty());
    const QString beside = all.takeLast();
    QCOMPARE(all, QStringList({first, second, own, system1, system2}));
    QCOMPARE(beside, QString(QFileInfo(QStringLiteral(ZEL_BINARY_DIR)).canonicalFilePath() %
                             QLatin1String("/share/zentrix")));
    QCOMPARE(texts(Tano::path::dataDirectories("zentrix", true)),
             QStringList({first, second, system1, system2, beside}));
    QCOMPARE(texts(Tano::path::dataDirectories("otherapp", false)), QStringList());
    QCOMPARE(texts(Tano::path::environmentDirectories("zentrix").value()),
             QStringList({first, second}));
    QVERIFY(!Tano::path::environmentDirectories("otherapp"));
    qputenv("ZENTRIX_DATA_PATH", {});
    QVERIFY(Tano::path::environmentDirectories("zentrix").value().empty());
    QCOMPARE(lines, QStringList());
}

void TestBase::ownDataAreFound() {
    const auto path =
        Tano::path::findData("zentrix", "media/images/icons/_png/default_app.png", false);
    QVERIFY(QFileInfo(QString::fromStdString(path)).size() > 0);
    QVERIFY(QFileInfo(QString::fromStdString(path)).isAbsolute());
}

void TestBase::firstDirectoryWins() {
    const QString inUser = made(user(), QStringLiteral("a.json"));
    const QString inSystem = made(QStringLiteral("system2/zentrix"), QStringLiteral("a.json"));
    const QString folder = made(QStringLiteral("system1/zentrix/robots"));
    const auto find = [](const char *path, bool excludeUser) {
        return QString::fromStdString(Tano::path::findData("zentrix", path, excludeUser));
    };
    QCOMPARE(find("a.json", false), inUser);
    QCOMPARE(find("a.json", true), inSystem);
    QCOMPARE(find("robots/../a.json", true), inSystem);
    QCOMPARE(find("robots", false), folder);
    QCOMPARE(find("b.json", false), QString());
}

void TestBase::refusedPaths_data() {
    QTest::addColumn<QString>("application");
    QTest::addColumn<QString>("path");
    const QString application = QStringLiteral("zentrix");
    QTest::newRow("absolute") << application << QStringLiteral("/etc/passwd");
    QTest::newRow("parent") << application << QStringLiteral("..");
    QTest::newRow("beside") << application << QStringLiteral("../secret");
    QTest::newRow("out through a folder") << application << QStringLiteral("a/../../secret");
    QTest::newRow("out and in again") << application << QStringLiteral("../zentrix/inside");
    QTest::newRow("empty") << application << QString();
    QTest::newRow("empty application") << QString() << QStringLiteral("secret");
    QTest::newRow("application outside")
        << QStringLiteral("../system1") << QStringLiteral("secret");
}

void TestBase::refusedPaths() {
    QFETCH(const QString, application);
    QFETCH(const QString, path);
    made(QStringLiteral("system1"), QStringLiteral("secret"));
    made(QStringLiteral("system1/zentrix"), QStringLiteral("inside"));
    QVERIFY(!Tano::path::findData("zentrix", "inside", false).empty());
    QCOMPARE(Tano::path::findData(application.toStdString(), path.toStdString(), false),
             std::string());
}

QTEST_GUILESS_MAIN(TestBase)
#include "tst_base.moc"
