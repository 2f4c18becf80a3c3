#pragma once

#include <tano/tano_base_export.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Parsing and printing of dotted versions.
///
/// ```cpp
/// const auto parsed = Tano::version::fromString(" 2.1 ");
/// Tano::version::toString(*parsed); // -> 2.1
/// ```
namespace Tano::version {

/// A dotted version: a list of unsigned 32-bit fields. Versions compare lexicographically over
/// their fields; a proper prefix is less.
using Version = std::vector<std::uint32_t>;

/// Parses decimal fields separated by single dots; surrounding white space is ignored. Returns
/// nullopt for anything else, including the empty text and fields beyond 32 bits.
[[nodiscard]] TANO_BASE_EXPORT std::optional<Version> fromString(std::string_view text);

/// Joins the fields with dots; empty for a version without fields.
TANO_BASE_EXPORT std::string toString(const Version &version);

} // namespace Tano::version
