// Saves files while calls of the C library fail, one at a time.

#include <tano/package_info.h>
#include <tano/save_file.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <cstdarg>
#include <dlfcn.h>
#include <fcntl.h>
#include <functional>
#include <map>
#include <string>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <utility>

namespace {

/// Makes one call fail, given by name and number, counted from 1. A full disk is simulated by a
/// write that takes half of its bytes, after which further writes fail.
struct Fault {
    std::string call;
    int number = 0;
    bool fillsUp = false;
    std::function<void()> instead = {};   // called in place of failing
    std::map<std::string, int> seen = {}; // the number of calls by name
    bool isArmed = false;
    int error = 0; // overrides the usual error
};

Fault fault;

template<typename Function, typename... Arguments>
auto failOrCall(Function *function, const char *name, int error, Arguments... arguments) {
    const auto real = reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
    if (!fault.isArmed)
        return real(arguments...);
    const int count = ++fault.seen[name];
    if (name == fault.call && (fault.fillsUp ? count > fault.number : count == fault.number)) {
        if (fault.instead) {
            fault.isArmed = false;
            fault.instead();
            return real(arguments...);
        }
        errno = fault.error != 0 ? fault.error : error;
        return decltype(function(arguments...))(-1);
    }
    return real(arguments...);
}

} // namespace

// Replacements for functions of the C library.
#pragma GCC visibility push(default)
#define FAILING(result, name, error, parameters, qualifier, ...)                                   \
    extern "C" result name parameters qualifier {                                                  \
        return failOrCall(name, #name, error, __VA_ARGS__);                                        \
    }
using Status = struct stat;
using ConstText = const char *;
FAILING(int, fallocate, ENOSPC, (int file, int mode, off_t at, off_t size), , file, mode, at, size)
FAILING(int, fchmod, EPERM, (int file, mode_t mode), noexcept, file, mode)
FAILING(int, fchown, EPERM, (int file, uid_t owner, gid_t group), noexcept, file, owner, group)
FAILING(ssize_t, fgetxattr, EIO, (int file, ConstText name, void *room, size_t size), noexcept,
        file, name, room, size)
FAILING(ssize_t, flistxattr, EIO, (int file, char *room, size_t size), noexcept, file, room, size)
FAILING(int, fsetxattr, EPERM,
        (int file, ConstText name, const void *value, size_t size, int flags), noexcept, file, name,
        value, size, flags)
FAILING(int, fstat, EIO, (int file, Status *status), noexcept, file, status)
FAILING(int, fsync, EIO, (int file), , file)
FAILING(int, ftruncate, EIO, (int file, off_t size), noexcept, file, size)
FAILING(int, lstat, EIO, (ConstText path, Status *status), noexcept, path, status)
FAILING(ssize_t, pread, EIO, (int file, void *room, size_t size, off_t at), , file, room, size, at)
FAILING(int, rename, EACCES, (ConstText from, ConstText to), noexcept, from, to)
FAILING(int, renameat2, EACCES,
        (int folder, ConstText from, int other, ConstText to, unsigned flags), noexcept, folder,
        from, other, to, flags)
FAILING(int, unlink, EIO, (ConstText path), noexcept, path)
extern "C" {
int fcntl(int file, int command, ...) {
    va_list rest;
    va_start(rest, command);
    void *argument = va_arg(rest, void *);
    va_end(rest);
    return failOrCall(fcntl, "fcntl", ENOLCK, file, command, argument);
}
int nanosleep(const timespec *, timespec *left) {
    const timespec noTime = {};
    return failOrCall(nanosleep, "nanosleep", EINTR, &noTime, left);
}
int open(const char *path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    return failOrCall(open, "open", EMFILE, path, flags, mode);
}
ssize_t pwrite(int file, const void *bytes, size_t size, off_t at) {
    const bool isHalved = fault.fillsUp && fault.seen["pwrite"] + 1 == fault.number;
    return failOrCall(pwrite, "pwrite", ENOSPC, file, bytes, isHalved ? size / 2 : size, at);
}
}
#pragma GCC visibility pop

enum class Way { Replaced, InPlace, New, OpenFile, Two };
Q_DECLARE_METATYPE(Way)

class TestSaveFaults : public QObject {
    Q_OBJECT

private:
    struct NamedWay {
        const char *name;
        Way way;
        int syncs; // of file, folder and, if it is overwritten, target
    };
    static constexpr NamedWay ways[] = {{"replaced", Way::Replaced, 2},
                                        {"in place", Way::InPlace, 3},
                                        {"new", Way::New, 2},
                                        {"open file", Way::OpenFile, 1},
                                        {"two files", Way::Two, 3}};
    const std::string m_old = std::string(50000, 'o');
    const std::string m_new = std::string(60000, 'n');
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_path;
    QString m_second;

    static std::string contentOf(const QString &path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "none";
    }

    void makeFiles(Way way) {
        m_dir = std::make_unique<QTemporaryDir>();
        m_path = m_dir->filePath(QStringLiteral("manifest.xml"));
        m_second = m_dir->filePath(QStringLiteral("second"));
        if (way == Way::New)
            return;
        QVERIFY(Tano::saveFile({m_path.toStdString(), m_old}));
        setxattr(qPrintable(m_path), "user.kept", "v", 1, 0);
        if (way == Way::InPlace)
            QCOMPARE(link(qPrintable(m_path), qPrintable(m_second)), 0);
        if (way == Way::Two)
            QVERIFY(Tano::saveFile({m_second.toStdString(), m_old}));
    }

    Tano::SaveResult save(Way way) const {
        if (way == Way::Two)
            return Tano::saveFiles({{m_path.toStdString(), m_new}, {m_second.toStdString(), {}}});
        if (way != Way::OpenFile)
            return Tano::saveFile({m_path.toStdString(), m_new});
        QFile file(m_path);
        return file.open(QIODevice::ReadWrite) ? Tano::saveToOpenFile(file, m_new)
                                               : Tano::SaveResult{"not open"};
    }

    Tano::SaveResult saveWith(Fault &armed, Way way) const {
        fault = armed;
        fault.isArmed = true;
        const auto result = save(way);
        armed = std::exchange(fault, {});
        return result;
    }

    QStringList files() const { return QDir(m_dir->path()).entryList(QDir::Files | QDir::Hidden); }

private Q_SLOTS:
    // A row for every call made by a save, and one for a full disk at each write.
    void saves_data() {
        QTest::addColumn<Way>("way");
        QTest::addColumn<QString>("call");
        QTest::addColumn<int>("number");
        QTest::addColumn<bool>("fillsUp");
        for (const auto &[name, way, syncs] : ways) {
            makeFiles(way);
            Fault none;
            QVERIFY(saveWith(none, way));
            QCOMPARE(none.seen["fsync"], syncs);
            for (const auto &[call, count] : none.seen) {
                for (int number = 1; number <= count; ++number) {
                    const QString text = QString::fromStdString(call);
                    QTest::addRow("%s: %s %d", name, call.c_str(), number)
                        << way << text << number << false;
                    if (call == "pwrite")
                        QTest::addRow("%s: disk full at write %d", name, number)
                            << way << text << number << true;
                }
            }
        }
    }

    // A save succeeds, or changes nothing and returns a sentence. If the disk fills up during an
    // overwrite, the new content is left beside the file.
    void saves() {
        QFETCH(Way, way);
        QFETCH(QString, call);
        QFETCH(int, number);
        QFETCH(bool, fillsUp);
        makeFiles(way);
        const QStringList before = files();
        Fault armed{call.toStdString(), number, fillsUp};
        const auto result = saveWith(armed, way);
        const QString error = QString::fromStdString(result.error);
        const bool namesFile = error.startsWith(QStringLiteral("The file \"%1").arg(m_dir->path()));
        QCOMPARE(namesFile, !result);
        const QStringList critical{QStringLiteral("fallocate"), QStringLiteral("fsync"),
                                   QStringLiteral("ftruncate"), QStringLiteral("pread"),
                                   QStringLiteral("pwrite"),    QStringLiteral("rename"),
                                   QStringLiteral("renameat2")};
        QVERIFY(!result || !critical.contains(call));

        const QString copy =
            error.section(QStringLiteral("the new one is in \""), 1).section(u'"', 0, 0);
        if (!copy.isEmpty())
            QCOMPARE(contentOf(copy), m_new);
        else if (!(fillsUp && way == Way::OpenFile && number > 0))
            QCOMPARE(contentOf(m_path), result ? m_new : way == Way::New ? "none" : m_old);
        if (copy.isEmpty() && call != QLatin1String("unlink") && !result)
            QCOMPARE(files(), before);
        if (way == Way::Two)
            QCOMPARE(contentOf(m_second), result ? "none" : m_old);

        QVERIFY(save(way)); // without faults
        QCOMPARE(contentOf(m_path), m_new);
        QStringList after{QStringLiteral("manifest.xml")};
        if (way == Way::InPlace)
            after += QStringLiteral("second");
        QCOMPARE(files(), after);
    }

    // A file that is a mount point cannot be replaced.
    void mountedFilesAreOverwritten() {
        makeFiles(Way::Replaced);
        fault.isArmed = true;
        fault.call = "rename";
        fault.number = 1;
        fault.error = EBUSY;
        const auto result = save(Way::Replaced);
        fault = {};
        QVERIFY2(result.error.empty(), result.error.c_str());
        QCOMPARE(contentOf(m_path), m_new);
        QCOMPARE(files().size(), 1);
    }

    // An edit by another program while the copy is synced is not lost.
    void lateEditsAreNoticed() {
        makeFiles(Way::Replaced);
        Fault late{"fsync", 1, false, [this] {
                       QFile file(m_path);
                       QVERIFY(file.open(QIODevice::WriteOnly) && file.write("edit") == 4);
                   }};
        fault = late;
        fault.isArmed = true;
        const auto result =
            Tano::saveFile({m_path.toStdString(), m_new, Tano::FileFingerprint::ofContent(m_old)});
        fault = {};
        QVERIFY(result.hasConflict);
        QCOMPARE(QString::fromStdString(result.error),
                 QStringLiteral("The file \"%1\" cannot be saved: another program has changed it "
                                "since it was read.")
                     .arg(m_path));
        QCOMPARE(contentOf(m_path), std::string("edit"));
        QCOMPARE(files().size(), 1);
    }

    void locksAreWaitedFor() {
        makeFiles(Way::Replaced);
        QFile other(m_path);
        QVERIFY(other.open(QIODevice::ReadWrite));
        struct flock whole = {};
        whole.l_type = F_WRLCK;
        QCOMPARE(fcntl(other.handle(), F_OFD_SETLK, &whole), 0);
        fault.isArmed = true;
        fault.call = "nanosleep";
        const std::string error = save(Way::Replaced).error;
        QVERIFY(error.find("another program has locked it") != std::string::npos);
        fault.number = fault.seen["nanosleep"];
        fault.seen.clear();
        fault.instead = [&] { other.close(); };
        QVERIFY(save(Way::Replaced));
        fault = {};
    }
};

QTEST_APPLESS_MAIN(TestSaveFaults)
#include "tst_save_faults.moc"
