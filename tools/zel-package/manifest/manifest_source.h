#pragma once

#include "console/console.h"

#include <tano/package_info.h>

#include <QString>

#include <optional>
#include <string>

namespace ZelPackage {

/// Whether an argument means standard input or output rather than a file: "-".
bool isStandardStream(const QString &file);

/// Reads the manifest in `file`, "-" for standard input, without its bytes. Returns false if it is
/// malformed, which `reader` describes, or if the file cannot be read: then `trouble` is the
/// reason.
[[nodiscard]] bool readPackage(const QString &file, Tano::ManifestReader &reader,
                               Tano::PackageInfo &package, QString &trouble);

/// A manifest as it was read, and its bytes.
struct Manifest {
    Tano::PackageInfo package;
    std::string content;
};

/// The bytes of `file`, "-" for standard input; where they cannot be read, `trouble` says why.
[[nodiscard]] std::optional<std::string> readContent(const QString &file, QString &trouble);

/// Why a manifest could not be read.
struct ManifestTrouble {
    Tano::SourcePosition position; ///< in a malformed manifest; line 0 for an unreadable file
    QString text;
};

/// The manifest that content is; nothing for any other.
[[nodiscard]] std::optional<Manifest> manifestOf(std::string content, ManifestTrouble &trouble);

/// Reads the manifest in `file`, "-" for standard input.
[[nodiscard]] std::optional<Manifest> readManifest(const QString &file, ManifestTrouble &trouble);

/// The same; a failure is reported.
[[nodiscard]] std::optional<Manifest> readManifest(const QString &file, Console &console);

/// Saves a package to the file that a manifest was read from, unless another program has changed it
/// since. After a failure, package.errorString() explains it.
[[nodiscard]] bool saveIfUnchanged(const QString &file, const Manifest &read,
                                   const Tano::PackageInfo &package);

} // namespace ZelPackage
