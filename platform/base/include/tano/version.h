#pragma once

#include <tano/tano_base_export.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tano::version {

/// A dotted version: a list of unsigned 32-bit fields. Versions compare lexicographically over
/// their fields; a proper prefix is less.
using Version = std::vector<std::uint32_t>;

/// Parses decimal fields separated by single dots, with white space around the whole ignored.
/// Anything else, an empty text and a field beyond 32 bits included, gives nothing.
[[nodiscard]] TANO_BASE_EXPORT std::optional<Version> fromString(std::string_view text);

/// The fields joined by dots; empty for a version without fields.
TANO_BASE_EXPORT std::string toString(const Version &version);

} // namespace Tano::version
