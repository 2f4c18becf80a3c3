#pragma once

#include "console.h"

#include <tano/package_info.h>

#include <QString>

#include <optional>
#include <string>

namespace ZelPackage {

/// Whether an argument means standard input or output rather than a file: "-".
[[nodiscard]] bool isStandardStream(const QString &file);

/// A manifest as it was read, and its bytes.
struct Manifest {
    Tano::PackageInfo package;
    std::string content;
};

/// The bytes of `file`, "-" for standard input; where they cannot be read, `trouble` says why.
[[nodiscard]] std::optional<std::string> readContent(const QString &file, QString &trouble);

/// Reads the manifest in `file`, "-" for standard input; where that fails, tells why and where.
[[nodiscard]] std::optional<Manifest> readManifest(const QString &file, Console &console);

} // namespace ZelPackage
