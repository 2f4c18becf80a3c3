#pragma once

#include <string>

namespace Tano {

/// A path in UTF-8 in the encoding of the file system; bytes that are not UTF-8 are the name
/// itself.
std::string nativeName(const std::string &path);

} // namespace Tano
