#pragma once

#include <string>

namespace Tano {

/// The path, given in UTF-8, in the file system's encoding. A path that is not valid UTF-8 is
/// returned unchanged.
std::string nativeName(const std::string &path);

} // namespace Tano
