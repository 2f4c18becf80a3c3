#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Tano {

enum class EscapeFor { Text, Attribute };

/// Appends `text` to `out`, escaped so that a parser returns it unchanged. Returns the offset of
/// the first byte that cannot be represented in XML 1.0, or std::string::npos.
std::size_t appendEscaped(std::string &out, std::string_view text, EscapeFor where);

} // namespace Tano
