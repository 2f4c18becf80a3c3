#pragma once

#include <map>
#include <string>
#include <vector>

namespace Tano {

/// One UTF-8 text per key, in ascending order of the keys: a language code for most texts.
using TextMap = std::map<std::string, std::string>;
/// One list of UTF-8 texts per key, in ascending order of the keys. A key stands here only while
/// its list holds something.
using TextListMap = std::map<std::string, std::vector<std::string>>;

} // namespace Tano
