#pragma once

#include <zel/robot_language.h>

#include <QString>

namespace ZelPackage {

/// The name of a language in the language of the program; its code where it has no name.
QString nameOf(const Zel::RobotLanguage &language);

} // namespace ZelPackage
