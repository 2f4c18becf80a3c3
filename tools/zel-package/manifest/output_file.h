#pragma once

#include "console/console.h"

#include <QCommandLineOption>
#include <QString>

#include <string>

namespace ZelPackage {

inline const QLatin1String outputOptionName("output");

/// The -o, --output option of commands that write a file.
QCommandLineOption outputOption();

/// Whether output and input are different files; reports it if they are not.
[[nodiscard]] bool checkIsOther(const QString &file, const QString &output, Console &console);

/// Writes content to an output, "-" for standard output. On failure, reports it and returns false.
[[nodiscard]] bool writeOutput(const QString &output, const std::string &content, Console &console);

/// Whether an input and an output, "-" for the standard streams, are the same regular file,
/// possibly through links.
bool isSameFile(const QString &input, const QString &output);

/// Whether an output refers to standard output, as /dev/stdout does.
bool isStandardOutput(const QString &output);

/// Whether an output is a pipe, a device or another existing file that cannot be replaced.
bool isSpecialFile(const QString &output);

/// Creates a file with this content unless it exists. On failure, returns the reason as a sentence.
[[nodiscard]] QString createFile(const QString &file, const std::string &content);

/// Writes content to a special file. On failure, returns the reason as a sentence.
[[nodiscard]] QString writeToSpecialFile(const QString &file, const std::string &content);

} // namespace ZelPackage
