#pragma once

#include "console/console.h"

class QCommandLineParser;

namespace ZelPackage {

inline constexpr const char *dryRunOption = "dry-run";

/// Makes the assignments that the arguments of "set" hold.
ExitStatus setFields(const QCommandLineParser &arguments, Console &console);

} // namespace ZelPackage
