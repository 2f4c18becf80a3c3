#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Tano {

enum class EscapeFor { Text, Attribute };

/// Appends `text` to `out` with everything escaped that would not come back as it is from a parser.
/// Returns the offset of the first byte that XML 1.0 in UTF-8 cannot hold, or std::string::npos.
std::size_t appendEscaped(std::string &out, std::string_view text, EscapeFor where);

} // namespace Tano
