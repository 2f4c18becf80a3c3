#pragma once

#include <zel/robot_language.h>

#include <QString>

inline QString text(const char *utf8) {
    return QString::fromUtf8(utf8);
}

/// The language of that code; the one without a code where the table has none.
inline Zel::RobotLanguage language(const char *code) {
    return Zel::robotLanguage(text(code));
}
