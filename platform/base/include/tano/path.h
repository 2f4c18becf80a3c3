#pragma once

#include <tano/tano_base_export.h>

#include <optional>
#include <string>
#include <vector>

/// Finds the data files of an application. All paths are absolute and in UTF-8.
///
/// ```cpp
/// const std::string robots = Tano::path::findData("zentrix", "robots", false);
/// ```
namespace Tano::path {

/// The existing directories that may hold data of `application`, in the order of the search:
///
/// 1. the entries of the environment variable APPLICATION_DATA_PATH (the application's name in
///    upper case; entries are separated as in PATH, and each is a data directory itself),
/// 2. the user's data directory, unless `excludeUser` is set,
/// 3. the system's data directories (2 and 3 as in QStandardPaths::GenericDataLocation),
/// 4. the data installed with this library or, in a build tree, the data of the source tree.
TANO_BASE_EXPORT std::vector<std::string> dataDirectories(const std::string &application,
                                                          bool excludeUser);

/// The directories named by the environment variable alone; nullopt if it is not set. A variable
/// that is set to the empty text names none.
TANO_BASE_EXPORT std::optional<std::vector<std::string>>
environmentDirectories(const std::string &application);

/// The absolute path of the first file or folder named `relativePath` in dataDirectories(), or the
/// empty text if there is none. Absolute paths, and paths that leave the data directory with "..",
/// are never found.
TANO_BASE_EXPORT std::string findData(const std::string &application,
                                      const std::string &relativePath, bool excludeUser);

} // namespace Tano::path
