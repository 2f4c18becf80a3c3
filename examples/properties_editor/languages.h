#pragma once

#include <zel/robot_language.h>

#include <QString>

namespace Editor {

/// The language of a code, also of one that the table of languages does not know.
Zel::RobotLanguage languageOf(const QString &code);
/// The name of the language of a code, for people.
QString languageName(const QString &code);

} // namespace Editor
