#pragma once

#include "console/console.h"

#include <zel/robot_language.h>

#include <optional>

namespace Zel {
class PackageInfoModel;
}

namespace ZelPackage {

/// All of a package for people to read. With a language, every text in that one; without, the
/// package's names and descriptions in all of its languages, and the behaviors in the default
/// language or, where the package does not have it, in its first.
QString textOf(const Zel::PackageInfoModel &package,
               const std::optional<Zel::RobotLanguage> &language, const Console &console);

} // namespace ZelPackage
