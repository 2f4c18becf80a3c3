#pragma once

#include "console/console.h"

#include <tano/package_info.h>

#include <QString>

#include <optional>
#include <string>

namespace ZelPackage {

/// Whether an argument is "-", which means standard input or output.
bool isStandardStream(const QString &file);

/// Reads the manifest in `file`, "-" for standard input, without keeping its bytes. Returns false
/// if it is malformed, as described by `reader`, or cannot be read; then `reason` is set.
[[nodiscard]] bool readPackage(const QString &file, Tano::ManifestReader &reader,
                               Tano::PackageInfo &package, QString &reason);

/// A manifest and its bytes.
struct Manifest {
    Tano::PackageInfo package;
    std::string content;
};

/// The bytes of `file`, "-" for standard input; if they cannot be read, sets `reason`.
[[nodiscard]] std::optional<std::string> readContent(const QString &file, QString &reason);

/// The reason why a manifest could not be read.
struct ManifestError {
    Tano::SourcePosition position; ///< line 0 if the file is unreadable
    QString text;
};

/// Parses a manifest; returns nullopt if it is malformed.
[[nodiscard]] std::optional<Manifest> manifestOf(std::string content, ManifestError &error);

/// Reads the manifest in `file`, "-" for standard input.
[[nodiscard]] std::optional<Manifest> readManifest(const QString &file, ManifestError &error);

/// The same, but reports errors.
[[nodiscard]] std::optional<Manifest> readManifest(const QString &file, Console &console);

/// Saves a package to the file from which the manifest was read, unless the file was changed in the
/// meantime. On failure, package.errorString() has the reason.
[[nodiscard]] bool saveIfUnchanged(const QString &file, const Manifest &read,
                                   const Tano::PackageInfo &package);

} // namespace ZelPackage
