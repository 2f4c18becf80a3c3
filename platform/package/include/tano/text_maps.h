#pragma once

#include <map>
#include <string>
#include <vector>

namespace Tano {

/// One UTF-8 text per key, usually a language code, in ascending order of the keys.
using TextMap = std::map<std::string, std::string>;
/// One list of UTF-8 texts per key, in ascending order of the keys. Empty lists have no key.
using TextListMap = std::map<std::string, std::vector<std::string>>;

} // namespace Tano
