// Saving while the calls of the C library that it comes down to fail, one at a time.

#include <tano/package_info.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <cstdarg>
#include <dlfcn.h>
#include <fcntl.h>
#include <map>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

using Tano::PackageInfo;

namespace {

/// Makes one call fail: the one of that name and number, counted from 1. On a disk that fills up it
/// is a write that takes half of its bytes, and those after it that fail.
struct Fault {
    std::string call;
    int number = 0;
    bool fillsUp = false;
    std::map<std::string, int> seen = {}; // how often each was called

    bool strikes(const char *name) {
        const int count = ++seen[name];
        return name == call && (fillsUp ? count > number : count == number);
    }
    bool halves(const char *name) const {
        return fillsUp && name == call && seen.at(name) == number;
    }
};

thread_local Fault *fault = nullptr; // the one that is armed

template<typename Function, typename... Arguments>
int failOrCall(Function *, const char *name, int error, Arguments... arguments) {
    if (fault && fault->strikes(name)) {
        errno = error;
        return -1;
    }
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name))(arguments...);
}

} // namespace

// They stand in for those of the C library, which Qt calls.
#pragma GCC visibility push(default)
extern "C" {
ssize_t write(int file, const void *bytes, size_t size) {
    if (fault && fault->strikes("write")) {
        errno = ENOSPC;
        return -1;
    }
    const size_t taken = fault && fault->halves("write") ? size / 2 : size;
    return reinterpret_cast<decltype(&write)>(dlsym(RTLD_NEXT, "write"))(file, bytes, taken);
}
int open64(const char *path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    return failOrCall(open64, "open64", EMFILE, path, flags, mode);
}
int fchmod(int file, mode_t mode) noexcept {
    return failOrCall(fchmod, "fchmod", EPERM, file, mode);
}
int fdatasync(int file) {
    return failOrCall(fdatasync, "fdatasync", EIO, file);
}
int ftruncate64(int file, off64_t size) noexcept {
    return failOrCall(ftruncate64, "ftruncate64", EIO, file, size);
}
int linkat(int from, const char *old, int to, const char *path, int flags) noexcept {
    return failOrCall(linkat, "linkat", ENOSPC, from, old, to, path, flags);
}
int rename(const char *from, const char *to) noexcept {
    return failOrCall(rename, "rename", EACCES, from, to);
}
int close(int file) {
    return failOrCall(close, "close", EIO, file);
}
}
#pragma GCC visibility pop

namespace {

using Save = bool (*)(const PackageInfo &package, const QString &path);

bool replace(const PackageInfo &package, const QString &path) {
    return package.saveToManifestFile(path.toStdString());
}

bool writeInPlace(const PackageInfo &package, const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadWrite) && package.saveToManifestFile(file);
}

PackageInfo packageOf(const char *author) {
    PackageInfo package;
    package.setAuthor(std::string(50000, author[0]));
    return package;
}

QByteArray contentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

// Saves while the fault is armed, which counts the calls.
bool saveWith(Fault &armed, Save save, const PackageInfo &package, const QString &path) {
    fault = &armed;
    const bool saved = save(package, path);
    fault = nullptr;
    return saved;
}

// A row for every call that saving makes, and one more for a write at which the disk is full.
void addFaults(Save save) {
    QTest::addColumn<QString>("call");
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("fillsUp");
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("manifest.xml"));
    if (!replace(packageOf("a"), path))
        qFatal("cannot save");
    Fault none;
    if (!saveWith(none, save, packageOf("b"), path))
        qFatal("cannot save");
    for (const auto &[call, count] : none.seen) {
        for (int number = 1; number <= count; ++number) {
            const QString name = QString::fromStdString(call);
            QTest::addRow("%s %d", call.c_str(), number) << name << number << false;
            if (call == "write")
                QTest::addRow("disk full at write %d", number) << name << number << true;
        }
    }
}

} // namespace

class TestSaveFaults : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        QVERIFY(m_dir.isValid());
        m_path = m_dir.filePath(QStringLiteral("manifest.xml"));
        QVERIFY(replace(m_old, m_path));
    }

    void everyCallIsGuarded() {
        Fault none;
        QVERIFY(saveWith(none, replace, m_new, m_path));
        for (const char *call : {"write", "fdatasync", "rename", "open64"})
            QVERIFY2(none.seen[call] > 0, call);
        QVERIFY(saveWith(none, writeInPlace, m_old, m_path));
        QVERIFY(none.seen["ftruncate64"] > 0);
    }

    void replacingIsAllOrNothing_data() { addFaults(replace); }
    void replacingIsAllOrNothing() {
        Fault armed = fetchFault();
        const bool saved = saveWith(armed, replace, m_new, m_path);
        QCOMPARE(contentOf(m_path).toStdString(), (saved ? m_new : m_old).saveToManifestContent());
        QCOMPARE(QDir(m_dir.path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList{QStringLiteral("manifest.xml")});
        const bool mustFail = armed.call == "write" || armed.call == "rename" ||
                              (armed.call == "fdatasync" && armed.number == 1);
        if (mustFail)
            QVERIFY(!saved);
        requireSentence(saved);
        QVERIFY(replace(m_new, m_path));
        QCOMPARE(contentOf(m_path).toStdString(), m_new.saveToManifestContent());
    }

    void writingInPlaceTells_data() { addFaults(writeInPlace); }
    void writingInPlaceTells() {
        Fault armed = fetchFault();
        const bool saved = saveWith(armed, writeInPlace, m_new, m_path);
        if (armed.call == "open64") // it is the test that opens the file
            return;
        if (armed.call != "close")
            QVERIFY(!saved);
        requireSentence(saved);
    }

private:
    static Fault fetchFault() {
        return {fetched<QString>("call").toStdString(), fetched<int>("number"),
                fetched<bool>("fillsUp")};
    }
    template<typename T>
    static T fetched(const char *name) {
        return *static_cast<T *>(QTest::qData(name, qMetaTypeId<T>()));
    }

    void requireSentence(bool saved) {
        const QString error = QString::fromStdString(m_new.errorString());
        const QString start = QStringLiteral("The file \"%1\" cannot be saved: ").arg(m_path);
        QCOMPARE(error.startsWith(start), !saved);
    }

    QTemporaryDir m_dir;
    QString m_path;
    const PackageInfo m_old = packageOf("old");
    const PackageInfo m_new = packageOf("new");
};

QTEST_APPLESS_MAIN(TestSaveFaults)
#include "tst_save_faults.moc"
