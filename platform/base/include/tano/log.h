#pragma once

#include <tano/tano_base_export.h>

#include <QString>

#include <utility>

/// Diagnostics in named categories, on top of Qt's logging categories.
///
/// Users filter them as in any Qt program, for example with
/// `QT_LOGGING_RULES="PackageModel.Package.debug=true"`.
///
/// ```cpp
/// Tano::log::error("Editor.Files", "open", QStringLiteral("no such file"));
/// Tano::log::verbose("Editor.Files", "open", [&] { return package.name(english); });
/// ```
namespace Tano::log {

/// Severity of a line, on a scale from 0 (nothing) to 6 (everything).
enum class Level {
    Silent = 0,
    Fatal = 1,
    Error = 2,
    Warning = 3,
    Info = 4,
    Verbose = 5,
    Debug = 6
};

/// Whether a line of this level in this category would be written. Verbose and debug lines are off
/// unless a filter rule enables the category's debug messages.
TANO_BASE_EXPORT bool isEnabled(const char *category, Level level);

/// Writes "operation: message" if the category is enabled at this level. No level ends the program.
TANO_BASE_EXPORT void write(const char *category, Level level, const char *operation,
                            const QString &message);

/// Writes an error line.
inline void error(const char *category, const char *operation, const QString &message) {
    write(category, Level::Error, operation, message);
}

/// Writes the QString that `compose()` returns, and calls it only if verbose lines of the category
/// are enabled.
template<typename Compose>
void verbose(const char *category, const char *operation, Compose &&compose) {
    if (isEnabled(category, Level::Verbose))
        write(category, Level::Verbose, operation, std::forward<Compose>(compose)());
}

} // namespace Tano::log
