#pragma once

#include <tano/manifest_reader.h>

#include <expat.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

/// Shared by the readers of manifests and speech scripts: expat's handle, limits, and error
/// messages.
namespace Tano {

using ExpatHandle = std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)>;

std::string quoted(std::string_view text);
std::string tagged(std::string_view name);
/// Whether the text is only XML white space. Called for every line break and indentation.
inline bool isWhiteSpace(std::string_view text) {
    for (const char c : text) {
        if (c != ' ' && c != '\n' && c != '\t' && c != '\r')
            return false;
    }
    return true;
}

/// The limit of ManifestReader that the current element, at the given depth, exceeds; else empty.
std::string exceededBound(XML_Parser parser, std::string_view element, int depth);
/// Limits on tags apply exactly to complete tags. For an unterminated one, this many bytes without
/// progress suffice to give up.
inline constexpr std::uint64_t hopelessLag = 2 * std::uint64_t(ManifestReader::maxTagLength);

inline constexpr const char *tagTooLong =
    "A tag, comment or processing instruction is longer than 1 MiB.";
inline constexpr const char *documentType = "A document type declaration is not allowed.";

/// Describes an expat error in `noun`. The caller reports the end of input, since it knows which
/// elements are open.
std::string describeXmlError(XML_Parser parser, std::string_view noun);

/// Prefixes the sentence with its position: "Line 3, column 7: ...".
std::string withPosition(const std::string &sentence, SourcePosition position);

} // namespace Tano
