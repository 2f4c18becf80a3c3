// What saving preserves, what it leaves behind, and how it interacts with other programs.

#include <tano/input_file.h>
#include <tano/save_file.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <functional>
#include <map>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

using Tano::FileFingerprint;
using Tano::SaveResult;

namespace {

constexpr uid_t somebody = 65534;
constexpr const char *accessList = "system.posix_acl_access";
constexpr const char *defaultList = "system.posix_acl_default";

// An access control list as stored by the system: its version, then tag, permissions and user of
// each entry. It lets user 1234 read; mode shows the mask as the group's permissions.
const std::string readerList = [] {
    std::string list("\2\0\0\0", 4);
    const auto add = [&](short tag, short permissions, int user) {
        list.append(reinterpret_cast<const char *>(&tag), 2);
        list.append(reinterpret_cast<const char *>(&permissions), 2);
        list.append(reinterpret_cast<const char *>(&user), 4);
    };
    add(0x01, 6, -1);   // the owner
    add(0x02, 4, 1234); // a user
    add(0x04, 0, -1);   // the group
    add(0x10, 4, -1);   // the mask
    add(0x20, 0, -1);   // others
    return list;
}();

std::string contentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "none";
}

// Everything that saving must preserve.
QString attributesOf(const QString &path) {
    struct stat status = {};
    if (lstat(qPrintable(path), &status) != 0)
        return QStringLiteral("none");
    QString all = QStringLiteral("%1 %2:%3 %4")
                      .arg(status.st_mode, 0, 8)
                      .arg(status.st_uid)
                      .arg(status.st_gid)
                      .arg(status.st_nlink);
    for (const char *name : {accessList, "user.kept"}) {
        char value[200];
        const ssize_t size = getxattr(qPrintable(path), name, value, sizeof value);
        if (size >= 0)
            all += QStringLiteral(" %1=%2").arg(
                QLatin1String(name), QLatin1String(QByteArray(value, int(size)).toHex()));
    }
    return all;
}

// Runs an action in a child process, optionally as another user; returns the error.
std::string inChild(const std::function<SaveResult()> &action, uid_t user) {
    int ends[2];
    if (pipe(ends) != 0)
        qFatal("no pipe");
    const pid_t child = fork();
    if (child == 0) {
        const bool isUser = user == getuid() || (setgid(user) == 0 && setuid(user) == 0);
        const std::string error = isUser ? action().error : "not that user";
        _exit(::write(ends[1], error.data(), error.size()) == ssize_t(error.size()) ? 0 : 1);
    }
    close(ends[1]);
    char text[4000];
    const ssize_t size = read(ends[0], text, sizeof text);
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    return status == 0 ? std::string(text, std::size_t(size)) : "it did not end by itself";
}

// Runs an action in a child process that is killed before or after a system call: number 2n and 2n
// + 1. Returns whether it was reached.
bool killedAt(int number, const std::function<void()> &action) {
    const pid_t child = fork();
    if (child == 0) {
        if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
            _exit(77);
        raise(SIGSTOP);
        action();
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    for (int done = 0; done <= number && WIFSTOPPED(status); ++done) {
        ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
        waitpid(child, &status, 0);
    }
    const bool isThere = WIFSTOPPED(status);
    if (isThere) {
        kill(child, SIGKILL);
        waitpid(child, &status, 0);
    }
    return isThere;
}

bool mayTrace() {
    return killedAt(0, [] { getppid(); });
}

} // namespace

class TestSaveFile : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_path;

    QStringList files() const { return QDir(m_dir->path()).entryList(QDir::Files | QDir::Hidden); }
    SaveResult save(const std::string &bytes) const {
        return Tano::saveFile({m_path.toStdString(), bytes});
    }
    bool setAttribute(const QString &path, const char *name, const std::string &value) const {
        return setxattr(qPrintable(path), name, value.data(), value.size(), 0) == 0;
    }
    // Puts the file into the state of a row; returns the reason if that is impossible here.
    QString arrange(const QString &how) {
        const QString linked = m_dir->filePath(QStringLiteral("linked"));
        const QByteArray path = m_path.toLocal8Bit();
        const std::map<QString, std::function<bool()>> ways{
            {QStringLiteral("acl"), [&] { return setAttribute(m_path, accessList, readerList); }},
            {QStringLiteral("folder's acl"),
             [&] { return setAttribute(m_dir->path(), defaultList, readerList); }},
            {QStringLiteral("xattr"), [&] { return setAttribute(m_path, "user.kept", "v"); }},
            {QStringLiteral("hard link"),
             [&] { return link(path.constData(), qPrintable(linked)) == 0; }},
            {QStringLiteral("owner"), [&] { return chown(path.constData(), 12345, 54321) == 0; }},
            {QStringLiteral("another group"),
             [&] { return chown(path.constData(), somebody, 54321) == 0; }},
            {QStringLiteral("sticky"),
             [&] { return chmod(qPrintable(m_dir->path()), 01777) == 0; }},
        };
        const auto way = ways.find(how);
        return way == ways.end() || way->second() ? QString() : qt_error_string(errno);
    }

private Q_SLOTS:
    void init() {
        m_dir = std::make_unique<QTemporaryDir>();
        m_path = m_dir->filePath(QStringLiteral("manifest.xml"));
        QVERIFY(save("old"));
        chmod(qPrintable(m_dir->path()), 0777);
    }

    void attributesStay_data() {
        QTest::addColumn<QString>("how");
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("asRoot"); // otherwise as a user who may not own the file
        QTest::addColumn<QString>("reason");
        for (const int mode : {0600, 0644, 0664, 0755, 04750, 02775})
            QTest::addRow("mode %o", unsigned(mode)) << QString() << mode << true << QString();
        QTest::newRow("read-only, as root") << QString() << 0444 << true << QString();
        QTest::newRow("read-only") << QString() << 0444 << false << "Permission denied";
        QTest::newRow("unreadable") << QString() << 0222 << false << "Permission denied";
        for (const char *how : {"acl", "folder's acl", "xattr", "hard link", "owner"})
            QTest::newRow(how) << QString::fromLatin1(how) << 0640 << true << QString();
        for (const char *how : {"another group", "sticky", "hard link", "owner", "xattr", "acl"})
            QTest::addRow("%s, as somebody", how)
                << QString::fromLatin1(how) << 0666 << false << QString();
    }

    void attributesStay() {
        QFETCH(QString, how);
        QFETCH(int, mode);
        QFETCH(bool, asRoot);
        QFETCH(QString, reason);
        const bool isRoot = getuid() == 0;
        const QStringList forRoot{QStringLiteral("owner"), QStringLiteral("another group"),
                                  QStringLiteral("sticky")};
        if (!isRoot && (forRoot.contains(how) || (asRoot && (mode & 0222) == 0)))
            QSKIP("only root can try this");
        QCOMPARE(chmod(qPrintable(m_path), mode_t(mode)), 0);
        const QString missing = arrange(how);
        if (!missing.isEmpty())
            QSKIP(qPrintable(QStringLiteral("the file system does not have it: ") + missing));
        if (isRoot && how == QLatin1String("acl") && !asRoot)
            QCOMPARE(chown(qPrintable(m_path), somebody, somebody), 0);
        const QString before = attributesOf(m_path);
        const std::string error =
            inChild([this] { return save("new"); }, isRoot && !asRoot ? somebody : getuid());
        if (!reason.isEmpty()) {
            QCOMPARE(QString::fromStdString(error),
                     QStringLiteral("The file \"%1\" cannot be saved: %2.").arg(m_path, reason));
        } else {
            QCOMPARE(error, std::string());
            QCOMPARE(contentOf(m_path), std::string("new"));
        }
        QCOMPARE(attributesOf(m_path), before);
        QCOMPARE(files().size(), how == QLatin1String("hard link") ? 2 : 1);
    }

    // A new file gets the default permissions.
    void newFiles() {
        const mode_t before = umask(027);
        const QString path = m_dir->filePath(QStringLiteral("new"));
        QVERIFY(Tano::saveFile({path.toStdString(), "new"}));
        umask(before);
        QVERIFY(attributesOf(path).startsWith(QStringLiteral("100640 ")));
    }

    void links() {
        const QString link = m_dir->filePath(QStringLiteral("link"));
        QVERIFY(QFile::link(QStringLiteral("manifest.xml"), link));
        QVERIFY(Tano::saveFile({link.toStdString(), "new"}));
        QCOMPARE(QFile::symLinkTarget(link), m_path);
        QCOMPARE(contentOf(m_path), std::string("new"));
        for (const std::optional<std::string> &bytes : {std::optional<std::string>("x"), {}}) {
            const auto result =
                Tano::saveFiles({{m_path.toStdString(), "newer"},
                                 {link.toStdString(), bytes, {}, Tano::FileToSave::Links::Refuse}});
            QCOMPARE(QString::fromStdString(result.error),
                     QStringLiteral("The file \"%1\" cannot be saved: it is a symbolic link.")
                         .arg(link));
            QCOMPARE(contentOf(m_path), std::string("new"));
        }
        QCOMPARE(files().size(), 2);
    }

    void onlyWhatWasRead() {
        const auto old = FileFingerprint::ofFile(m_path.toStdString());
        const std::string path = m_path.toStdString();
        QCOMPARE(old.size, std::int64_t(3));
        QVERIFY(old == FileFingerprint::ofContent("old"));
        QVERIFY(Tano::saveFile({path, "new", old}));
        QVERIFY(Tano::saveFile({path, "new", old}).hasConflict); // same size
        QVERIFY(Tano::saveFile({path, {}, old}).hasConflict);
        QVERIFY(Tano::saveFile({path, "new", FileFingerprint()}).hasConflict);
        QCOMPARE(contentOf(m_path), std::string("new"));
        QVERIFY(Tano::saveFile({path, {}, FileFingerprint::ofContent("new")}));
        QVERIFY(Tano::saveFile({path, "new", old}).hasConflict);
        QVERIFY(Tano::saveFile({path, "new", FileFingerprint()}));
    }

    // Each process adds lines, and retries if another one was faster.
    void manyWriters() {
        constexpr int writers = 4;
        constexpr int lines = 20;
        QVector<pid_t> children;
        for (int writer = 0; writer < writers; ++writer) {
            children += fork();
            if (children.last() != 0)
                continue;
            for (int line = 0; line < lines;) {
                const std::string content = contentOf(m_path);
                const auto result = Tano::saveFile({m_path.toStdString(), content + "\nline",
                                                    FileFingerprint::ofContent(content)});
                if (!result && !result.hasConflict)
                    _exit(1);
                line += result ? 1 : 0;
            }
            _exit(0);
        }
        for (const pid_t child : children) {
            int status = -1;
            waitpid(child, &status, 0);
            QCOMPARE(status, 0);
        }
        QCOMPARE(QString::fromStdString(contentOf(m_path)).count(u'\n'), writers * lines);
        QCOMPARE(files().size(), 1);
    }

    // Removes only copies of this file whose process has ended.
    void removesStaleCopies() {
        const auto make = [this](const char *name) {
            const QString path = m_dir->filePath(QLatin1String(name));
            QFile file(path);
            if (!file.open(QIODevice::ReadWrite))
                qFatal("%s", qPrintable(path));
            return path;
        };
        make(".manifest.xml.saving-0123abcd");
        make(".other.xml.saving-0123abcd");
        make(".manifest.xml.saving-0123");
        QFile live(make(".manifest.xml.saving-00000000"));
        QVERIFY(live.open(QIODevice::ReadWrite));
        struct flock whole = {};
        whole.l_type = F_WRLCK;
        QCOMPARE(fcntl(live.handle(), F_OFD_SETLK, &whole), 0);
        QVERIFY(save("new"));
        QCOMPARE(files(), (QStringList{QStringLiteral(".manifest.xml.saving-00000000"),
                                       QStringLiteral(".manifest.xml.saving-0123"),
                                       QStringLiteral(".other.xml.saving-0123abcd"),
                                       QStringLiteral("manifest.xml")}));
    }

    void killed_data() {
        QTest::addColumn<QString>("how");
        for (const char *how : {"xattr", "hard link", "new"})
            QTest::newRow(how) << QString::fromLatin1(how);
    }

    // Whenever the process is killed, the file or its copy is complete, access is never extended,
    // and the next save removes leftovers.
    void killed() {
        QFETCH(QString, how);
        if (!mayTrace())
            QSKIP("processes may not be traced here");
        const mode_t mask = umask(0);
        bool isRunning = true;
        for (int number = 0; isRunning; ++number) {
            m_dir = std::make_unique<QTemporaryDir>();
            m_path = m_dir->filePath(QStringLiteral("manifest.xml"));
            if (how != QLatin1String("new")) {
                QVERIFY(save("old"));
                chmod(qPrintable(m_path), 0640);
                const QString missing = arrange(how);
                if (!missing.isEmpty())
                    QSKIP(qPrintable(missing));
            }
            const QStringList before = files();
            const std::string old = contentOf(m_path);
            isRunning = killedAt(number, [this] { static_cast<void>(save("new content")); });

            bool isComplete = false;
            for (const QString &name : files()) {
                const QString path = m_dir->filePath(name);
                const std::string content = contentOf(path);
                isComplete = isComplete || content == "new content" || content == old;
                struct stat status = {};
                QCOMPARE(lstat(qPrintable(path), &status), 0);
                QVERIFY(how == QLatin1String("new") || (status.st_mode & 0777 & ~0640U) == 0);
            }
            QVERIFY(isComplete || how == QLatin1String("new"));
            QVERIFY(save("newer"));
            QCOMPARE(contentOf(m_path), std::string("newer"));
            QCOMPARE(files(),
                     before.isEmpty() ? QStringList{QStringLiteral("manifest.xml")} : before);
        }
        umask(mask);
    }

    // The limit's signal does not kill the process, and the old content is restored.
    void sizeLimit() {
        const std::string large(100000, 'x');
        const auto limited = [](const std::function<SaveResult()> &action) {
            return inChild(
                [&] {
                    const rlimit limit{50000, RLIM_INFINITY};
                    setrlimit(RLIMIT_FSIZE, &limit);
                    return action();
                },
                getuid());
        };
        const auto intoOpenFile = [&] {
            QFile file(m_path);
            return file.open(QIODevice::ReadWrite) ? Tano::saveToOpenFile(file, large)
                                                   : SaveResult{"not open"};
        };
        const QString expected =
            QStringLiteral("The file \"%1\" cannot be saved: File too large.").arg(m_path);
        QCOMPARE(QString::fromStdString(limited([&] { return save(large); })), expected);
        QCOMPARE(QString::fromStdString(limited(intoOpenFile)), expected);
        QCOMPARE(contentOf(m_path), std::string("old"));
        QCOMPARE(files().size(), 1);
    }

    void openFiles() {
        const auto save = [this](QIODevice::OpenMode mode) {
            QFile file(m_path);
            if (!file.open(mode))
                return QStringLiteral("not open");
            if (file.isReadable())
                static_cast<void>(file.peek(2)); // fills the buffer
            const auto result = Tano::saveToOpenFile(file, "much longer");
            return result ? QString::number(file.pos())
                          : QString::fromStdString(result.error).section(QStringLiteral(": "), 1);
        };
        QCOMPARE(save(QIODevice::ReadOnly), QStringLiteral("it is not open for writing."));
        QCOMPARE(save(QIODevice::Append), QStringLiteral("it is open for appending."));
        QCOMPARE(save(QIODevice::Append | QIODevice::ReadWrite),
                 QStringLiteral("it is open for appending."));
        QCOMPARE(contentOf(m_path), std::string("old"));
        for (const auto mode : {QIODevice::ReadWrite, QIODevice::WriteOnly}) {
            QCOMPARE(save(mode), QStringLiteral("11"));
            QCOMPARE(contentOf(m_path), std::string("much longer"));
        }
    }

    // Endless input is read up to the limit.
    void input() {
        int ends[2];
        QCOMPARE(pipe(ends), 0);
        QCOMPARE(::write(ends[1], "0123456789", 10), ssize_t(10));
        QFile end;
        close(ends[1]);
        QVERIFY(end.open(ends[0], QIODevice::ReadOnly, QFileDevice::AutoCloseHandle));
        Tano::InputFile input(end, 7);
        char room[4];
        QCOMPARE(input.read(room, 4), std::int64_t(4));
        QCOMPARE(input.read(room, 4), std::int64_t(-1));
        QCOMPARE(input.error(), std::string("it is larger than 7 bytes"));
    }
};

QTEST_APPLESS_MAIN(TestSaveFile)
#include "tst_save_file.moc"
