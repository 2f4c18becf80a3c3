#pragma once

#include <QFile>
#include <QProcess>
#include <QTemporaryFile>
#include <QTest>

/// Compares what a test produced with a golden file of the test data, which is written anew where
/// the environment variable ZEL_UPDATE_GOLDEN is set. Returns the difference as diff(1) shows it.
inline QString differenceFromGolden(const QString &path, const QByteArray &actual) {
    if (qEnvironmentVariableIsSet("ZEL_UPDATE_GOLDEN")) {
        QFile file(path);
        if (!file.open(QFile::WriteOnly) || file.write(actual) != actual.size())
            return path + QStringLiteral(" cannot be written");
        return {};
    }
    QProcess diff;
    diff.start(QStringLiteral("diff"),
               {QStringLiteral("-u"), QStringLiteral("--label"), path, QStringLiteral("--label"),
                QStringLiteral("actual"), path, QStringLiteral("-")});
    diff.write(actual);
    diff.closeWriteChannel();
    if (!diff.waitForFinished())
        return diff.errorString();
    return QString::fromUtf8(diff.readAll() + diff.readAllStandardError());
}

/// Fails with the difference, if any.
#define COMPARE_WITH_GOLDEN(path, actual)                                                          \
    do {                                                                                           \
        const QString difference = differenceFromGolden(path, actual);                             \
        QVERIFY2(difference.isEmpty(), qPrintable(u'\n' + difference));                            \
    } while (false)
