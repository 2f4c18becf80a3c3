#pragma once

#include "console/console.h"

#include <zel/robot_language.h>

#include <QString>

#include <optional>

namespace ZelPackage {

/// The language with this code. Codes that are not in the table of languages are accepted if they
/// are well-formed (an ISO 639 language, then optionally an ISO 15924 script, an ISO 3166-1
/// territory and a BCP 47 private-use part). `message` reports unknown or malformed codes and is
/// empty for known ones.
std::optional<Zel::RobotLanguage> languageArgument(const QString &code, QString &message);

/// The same, but prints the message to standard error.
std::optional<Zel::RobotLanguage> languageArgument(const QString &code, Console &console);

} // namespace ZelPackage
