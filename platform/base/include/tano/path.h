#pragma once

#include <tano/tano_base_export.h>

#include <optional>
#include <string>
#include <vector>

/// Where an application's data files are. All paths are absolute and in UTF-8.
namespace Tano::path {

/// The directories that may hold data of `application`, those searched first in front; only
/// directories that exist are listed.
///
/// They are, in this order: the entries of the environment variable APPLICATION_DATA_PATH (the
/// application's name in upper case, entries separated as in PATH; an entry is itself the data
/// directory), the user's data directory, the system's data directories (both as
/// QStandardPaths::GenericDataLocation has them), and the data beside this library, which are the
/// installed data or, in a build tree, those of the source tree.
///
/// `excludeUser` leaves the user's own data directory out.
TANO_BASE_EXPORT std::vector<std::string> dataDirectories(const std::string &application,
                                                          bool excludeUser);

/// Those of the environment variable alone; nothing where it is not set, even to the empty text.
TANO_BASE_EXPORT std::optional<std::vector<std::string>>
environmentDirectories(const std::string &application);

/// The absolute path of the first file or folder named `relativePath` in dataDirectories(), or the
/// empty text when there is none. A path that is absolute, or that leads out of the data directory
/// with "..", is not found.
TANO_BASE_EXPORT std::string findData(const std::string &application,
                                      const std::string &relativePath, bool excludeUser);

} // namespace Tano::path
