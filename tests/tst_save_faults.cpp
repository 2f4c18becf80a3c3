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
#include <unistd.h>
#include <utility>

using Tano::PackageInfo;

namespace {

/// Makes one call fail: the one of that name and number, counted from 1. On a disk that fills up it
/// is a write that takes half of its bytes, and those after it that fail.
struct Fault {
    std::string call;
    int number = 0;
    bool fillsUp = false;
    std::map<std::string, int> seen = {}; // how often each was called
};

thread_local Fault fault; // the one that is armed

template<typename Function, typename... Arguments>
auto failOrCall(Function *function, const char *name, int error, Arguments... arguments) {
    const int count = ++fault.seen[name];
    if (name == fault.call && (fault.fillsUp ? count > fault.number : count == fault.number)) {
        errno = error;
        return decltype(function(arguments...))(-1);
    }
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name))(arguments...);
}

} // namespace

// They stand in for those of the C library, which Qt calls.
#pragma GCC visibility push(default)
extern "C" {
ssize_t write(int file, const void *bytes, size_t size) {
    const bool isHalved = fault.fillsUp && fault.seen["write"] + 1 == fault.number;
    return failOrCall(write, "write", ENOSPC, file, bytes, isHalved ? size / 2 : size);
}
int open64(const char *path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    return failOrCall(open64, "open64", EMFILE, path, flags, mode);
}
int fdatasync(int file) {
    return failOrCall(fdatasync, "fdatasync", EIO, file);
}
int ftruncate64(int file, off64_t size) noexcept {
    return failOrCall(ftruncate64, "ftruncate64", EIO, file, size);
}
int rename(const char *from, const char *to) noexcept {
    return failOrCall(rename, "rename", EACCES, from, to);
}
}
#pragma GCC visibility pop

class TestSaveFaults : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    const QString m_path = m_dir.filePath(QStringLiteral("manifest.xml"));
    PackageInfo m_old;
    PackageInfo m_new;

    // Saves while the fault is armed, and tells how often each call was made.
    bool save(Fault &armed, bool inPlace) {
        QFile file(m_path);
        if (inPlace && !file.open(QIODevice::ReadWrite))
            return false;
        fault = armed;
        const bool saved = inPlace ? m_new.saveToManifestFile(file)
                                   : m_new.saveToManifestFile(m_path.toStdString());
        armed = std::exchange(fault, {});
        return saved;
    }

private Q_SLOTS:
    void init() {
        m_old.setAuthor(std::string(50000, 'o'));
        m_new.setAuthor(std::string(50000, 'n'));
        QVERIFY(m_old.saveToManifestFile(m_path.toStdString()));
    }

    // A row for every call that saving makes, and one more for a write at which the disk is full.
    void saves_data() {
        QTest::addColumn<bool>("inPlace");
        QTest::addColumn<QString>("call");
        QTest::addColumn<int>("number");
        QTest::addColumn<bool>("fillsUp");
        init();
        for (const bool inPlace : {false, true}) {
            Fault none;
            QVERIFY(save(none, inPlace));
            QCOMPARE(none.seen.count(inPlace ? "ftruncate64" : "fdatasync"), std::size_t(1));
            for (const auto &[call, count] : none.seen) {
                for (int number = 1; number <= count; ++number) {
                    const QString name = QString::fromStdString(call);
                    QTest::addRow("%s %d, in place: %d", call.c_str(), number, inPlace)
                        << inPlace << name << number << false;
                    if (call == "write")
                        QTest::addRow("disk full at write %d, in place: %d", number, inPlace)
                            << inPlace << name << number << true;
                }
            }
        }
    }

    // All or nothing where the file is replaced; and always a sentence if it was not saved.
    void saves() {
        QFETCH(bool, inPlace);
        QFETCH(QString, call);
        QFETCH(int, number);
        QFETCH(bool, fillsUp);
        Fault armed{call.toStdString(), number, fillsUp};
        const bool saved = save(armed, inPlace);
        const QString start = QStringLiteral("The file \"%1\" cannot be saved: ").arg(m_path);
        QCOMPARE(QString::fromStdString(m_new.errorString()).startsWith(start), !saved);
        const bool mayGoOn =
            call == QLatin1String("open64") || (call == QLatin1String("fdatasync") && number > 1);
        QVERIFY(mayGoOn || !saved);
        if (inPlace)
            return;
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll().toStdString(), (saved ? m_new : m_old).saveToManifestContent());
        QCOMPARE(QDir(m_dir.path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList{QStringLiteral("manifest.xml")});
        QVERIFY(m_new.saveToManifestFile(m_path.toStdString())); // nothing is in the way
    }
};

QTEST_APPLESS_MAIN(TestSaveFaults)
#include "tst_save_faults.moc"
