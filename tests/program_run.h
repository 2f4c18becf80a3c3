#pragma once

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QString>

#include <array>
#include <filesystem>
#include <pty.h>
#include <unistd.h>

// Runs zel-package like its users. Any failure to do so ends the test program.

struct Outcome {
    int status = -1;
    QByteArray out;
    QByteArray err;
};

inline QByteArray contentOf(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

inline void write(const QString &path, const QByteArray &content) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
}

inline QString testData(const char *path) {
    return QStringLiteral(ZEL_TEST_DATA "/") % QLatin1String(path);
}

inline Outcome finished(QProcess &process, const QByteArray &input = {}) {
    process.write(input);
    process.closeWriteChannel();
    // Sanitizers are slow; ctest stops tests that hang.
    if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit)
        qFatal("zel-package: %s", qPrintable(process.errorString()));
    if (!process.isReadable()) // both streams are redirected
        return {process.exitCode(), {}, {}};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

/// Runs the program in a directory.
inline Outcome runProgram(const QStringList &arguments, const QString &directory,
                          const QByteArray &input = {}) {
    QProcess process;
    process.setWorkingDirectory(directory);
    process.start(QStringLiteral(ZEL_PACKAGE_PROGRAM), arguments);
    return finished(process, input);
}

/// Runs a shell command. The program is on the PATH; $FILES has the manifests for it, and $DATA,
/// $SOURCE and $XMLLINT are set.
inline Outcome runShell(const QString &line, const QString &directory) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QString programs = QFileInfo(QStringLiteral(ZEL_PACKAGE_PROGRAM)).path();
    environment.insert(QStringLiteral("PATH"),
                       programs % u':' % environment.value(QStringLiteral("PATH")));
    environment.insert(QStringLiteral("FILES"), testData("zel-package/files"));
    environment.insert(QStringLiteral("DATA"), QStringLiteral(ZEL_TEST_DATA));
    environment.insert(QStringLiteral("SOURCE"), QStringLiteral(ZEL_SOURCE_DIR));
    environment.insert(QStringLiteral("XMLLINT"), QStringLiteral(ZEL_XMLLINT));
    environment.remove(QStringLiteral("MAKELEVEL")); // make prints it
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(directory);
    process.start(QStringLiteral("sh"), {QStringLiteral("-c"), line});
    return finished(process);
}

/// Replaces the directory's contents by copies of the manifests for the program.
inline void resetFiles(const QString &directory) {
    std::error_code error;
    // Unlike Qt, removes names that are not UTF-8.
    std::filesystem::remove_all(directory.toStdString(), error);
    if (error || !QDir().mkpath(directory))
        qFatal("cannot empty %s", qPrintable(directory));
    const auto files = QDir(testData("zel-package/files")).entryInfoList(QDir::Files);
    for (const QFileInfo &file : files)
        QFile::copy(file.filePath(), QDir(directory).filePath(file.fileName()));
}

/// The program's standard output on a terminal of 120 columns, optionally with its messages.
inline QByteArray terminalOutput(const QStringList &arguments, const QString &directory,
                                 const char *noColor, bool withMessages = false) {
    winsize size{};
    size.ws_row = 24;
    size.ws_col = 120;
    int primary = -1;
    int secondary = -1;
    std::array<char, 256> name{};
    if (openpty(&primary, &secondary, name.data(), nullptr, &size) != 0)
        qFatal("no terminal");
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TERM"), QStringLiteral("xterm"));
    environment.insert(QStringLiteral("NO_COLOR"), QLatin1String(noColor));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(directory);
    process.setStandardOutputFile(QLatin1String(name.data()));
    if (withMessages)
        process.setStandardErrorFile(QLatin1String(name.data()));
    process.start(QStringLiteral(ZEL_PACKAGE_PROGRAM), arguments);
    const Outcome outcome = finished(process);
    if (outcome.status == 2)
        qFatal("%s", outcome.err.constData());
    close(secondary);
    QFile terminal;
    if (!terminal.open(primary, QIODevice::ReadOnly | QIODevice::Unbuffered,
                       QFileDevice::AutoCloseHandle))
        qFatal("%s", qPrintable(terminal.errorString()));
    // Reading fails at the end, once the other side is closed.
    return terminal.readAll().replace("\r\n", "\n");
}
