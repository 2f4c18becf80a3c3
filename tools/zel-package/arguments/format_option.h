#pragma once

#include "console/console.h"

#include <QCommandLineOption>
#include <QCommandLineParser>

#include <optional>

namespace ZelPackage {

enum class OutputFormat { Text, Json };

/// The option --format of commands that print text or JSON.
QCommandLineOption formatOption();

/// What --format asks for; nothing once a wrong value has been reported.
std::optional<OutputFormat> formatOf(const QCommandLineParser &arguments, Console &console);

} // namespace ZelPackage
