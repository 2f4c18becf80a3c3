#pragma once

#include "console/console.h"

#include <QCommandLineOption>
#include <QCommandLineParser>

#include <optional>

namespace ZelPackage {

enum class OutputFormat { Text, Json };

/// The --format option of commands that print text or JSON.
QCommandLineOption formatOption();

/// The requested format; nullopt after reporting an invalid value.
std::optional<OutputFormat> formatOf(const QCommandLineParser &arguments, Console &console);

} // namespace ZelPackage
