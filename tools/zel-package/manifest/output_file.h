#pragma once

#include "console/console.h"

#include <QCommandLineOption>
#include <QString>

#include <string>

namespace ZelPackage {

inline const QLatin1String outputOptionName("output");

/// The option -o, --output of commands that write a file.
QCommandLineOption outputOption();

/// Whether an output is another file than an input; reports one that is the same.
[[nodiscard]] bool checkIsOther(const QString &file, const QString &output, Console &console);

/// Writes content to an output, "-" for standard output. Reports a failure and returns false.
[[nodiscard]] bool writeOutput(const QString &output, const std::string &content, Console &console);

/// Whether an input and an output, "-" for the standard streams, are one regular file, also through
/// links.
bool isSameFile(const QString &input, const QString &output);

/// Whether an output is what standard output goes to, as /dev/stdout is.
bool isStandardOutput(const QString &output);

/// Whether an output exists and is a pipe, a device or another file that cannot be replaced.
bool isSpecialFile(const QString &output);

/// Creates a file with this content; one that exists is left alone. Returns why that failed, as a
/// sentence.
[[nodiscard]] QString createFile(const QString &file, const std::string &content);

/// Writes content to a special file. Returns why that failed, as a sentence.
[[nodiscard]] QString writeToSpecialFile(const QString &file, const std::string &content);

} // namespace ZelPackage
