#pragma once

#include <zel/robot_language.h>

#include <QByteArray>
#include <QFile>
#include <QString>

inline QString text(const char *utf8) {
    return QString::fromUtf8(utf8);
}

/// The language with this code, or one without a code.
inline Zel::RobotLanguage language(const char *code) {
    return Zel::robotLanguage(text(code));
}

/// The content of a file below ZEL_TEST_DATA.
inline QByteArray testData(const QString &path) {
    QFile file(text(ZEL_TEST_DATA "/") + path);
    if (!file.open(QFile::ReadOnly))
        qFatal("cannot read %s", qPrintable(file.fileName()));
    return file.readAll();
}
