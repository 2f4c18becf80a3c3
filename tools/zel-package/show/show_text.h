#pragma once

#include "console/console.h"

#include <zel/robot_language.h>

#include <optional>

namespace Zel {
class PackageInfoModel;
}

namespace ZelPackage {

/// Formats a whole package for people. With a language, all texts are in it. Without one, names and
/// descriptions of the package are in all languages, and behaviors in the default language or, if
/// the package does not have it, in its first language.
QString textOf(const Zel::PackageInfoModel &package,
               const std::optional<Zel::RobotLanguage> &language, const Console &console);

} // namespace ZelPackage
