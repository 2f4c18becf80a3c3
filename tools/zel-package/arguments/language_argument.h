#pragma once

#include "console/console.h"

#include <zel/robot_language.h>

#include <QString>

#include <optional>

namespace ZelPackage {

/// The language that an argument names by its code. A code that the table of languages does not
/// have is taken too, if it is built as a code is (ISO 639 language, then optionally ISO 15924
/// script and ISO 3166-1 territory, then a private-use part as in BCP 47). `message` then says so,
/// and for any other text says what is wrong; it is empty for a known code.
std::optional<Zel::RobotLanguage> languageArgument(const QString &code, QString &message);

/// The same, with the message written to standard error.
std::optional<Zel::RobotLanguage> languageArgument(const QString &code, Console &console);

} // namespace ZelPackage
