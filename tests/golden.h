#pragma once

#include <QFile>
#include <QProcess>
#include <QTest>

/// The difference between a golden file and a test's output, as printed by diff(1). If
/// ZEL_UPDATE_GOLDEN is set in the environment, writes the file instead.
inline QString differenceFromGolden(const QString &path, const QByteArray &actual) {
    QFile file(path);
    if (file.open(QFile::ReadOnly) && file.readAll() == actual)
        return {};
    file.close();
    if (qEnvironmentVariableIsSet("ZEL_UPDATE_GOLDEN")) {
        if (!file.open(QFile::WriteOnly) || file.write(actual) != actual.size() || !file.flush())
            return path + QStringLiteral(": ") + file.errorString();
        return {};
    }
    QProcess diff;
    diff.start(QStringLiteral("diff"),
               {QStringLiteral("--text"), QStringLiteral("-u"), QStringLiteral("--label"), path,
                QStringLiteral("--label"), QStringLiteral("actual"), path, QStringLiteral("-")});
    diff.write(actual);
    diff.closeWriteChannel();
    if (!diff.waitForFinished())
        return diff.errorString();
    return QString::fromUtf8(diff.readAll() + diff.readAllStandardError());
}

/// Fails with the difference, if there is one.
#define COMPARE_WITH_GOLDEN(path, actual)                                                          \
    do {                                                                                           \
        const QString difference = differenceFromGolden(path, actual);                             \
        QVERIFY2(difference.isEmpty(), qPrintable(u'\n' + difference));                            \
    } while (false)
