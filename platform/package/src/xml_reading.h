#pragma once

#include <tano/manifest_reader.h>

#include <expat.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

/// What the readers of manifests and of speech scripts share: expat's handle, the bounds, and the
/// sentences that tell what is wrong.
namespace Tano {

using ExpatHandle = std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)>;

std::string quoted(std::string_view text);
std::string tagged(std::string_view name);
/// Whether there is nothing but XML's white space. Asked for every line's end and indentation.
inline bool isWhiteSpace(std::string_view text) {
    for (const char c : text) {
        if (c != ' ' && c != '\n' && c != '\t' && c != '\r')
            return false;
    }
    return true;
}

/// Which of ManifestReader's bounds the element that starts exceeds, as the `depth`-th of those
/// that are open; empty for none.
std::string exceededBound(XML_Parser parser, std::string_view element, int depth);
/// The bounds of a tag hold exactly where a tag is complete; for one that never ends, this many
/// bytes without progress are enough to give up.
inline constexpr std::uint64_t hopelessLag = 2 * std::uint64_t(ManifestReader::maxTagLength);

inline constexpr const char *tagTooLong =
    "A tag, comment or processing instruction is longer than 1 MiB.";
inline constexpr const char *documentType = "A document type declaration is not allowed.";

/// Why expat refused what `noun` names, in a sentence. The end of the input is the caller's to
/// tell, who knows what is open.
std::string describeXmlError(XML_Parser parser, std::string_view noun);

/// The sentence after its place: "Line 3, column 7: ...".
std::string withPosition(const std::string &sentence, SourcePosition position);

} // namespace Tano
