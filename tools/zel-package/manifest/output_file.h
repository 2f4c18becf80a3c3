#pragma once

#include "console/console.h"

#include <QString>

#include <string>

namespace ZelPackage {

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

/// Writes content to an output of any kind, "-" for standard output. Returns false once it has
/// reported why that failed.
[[nodiscard]] bool writeContent(const std::string &content, const QString &output,
                                Console &console);

} // namespace ZelPackage
