#include "xml_reading.h"

namespace Tano {
namespace {

constexpr const char *bareAmpersand =
    "An \"&\" starts a reference here; write &amp; for the character itself.";

bool isAtAmpersand(XML_Parser parser) {
    int offset = 0;
    int size = 0;
    const char *context = XML_GetInputContext(parser, &offset, &size);
    return context && offset < size && context[offset] == '&';
}

std::string describeBadByte(XML_Parser parser) {
    int offset = 0;
    int size = 0;
    const char *context = XML_GetInputContext(parser, &offset, &size);
    const bool hasByte = context && offset < size;
    const auto byte = hasByte ? static_cast<unsigned char>(context[offset]) : 0x20;
    if (byte == 0)
        return "A NUL byte is not allowed.";
    if (byte >= 0x80)
        return "The bytes here are not valid UTF-8, or encode a character that XML does not "
               "allow.";
    const char previous = hasByte && offset > 0 ? context[offset - 1] : '\0';
    if (previous == '&')
        return bareAmpersand;
    if (previous == '<')
        return "A \"<\" starts a tag here; write &lt; for the character itself.";
    if (isWhiteSpace({context + offset, hasByte ? 1U : 0U}))
        return "The text is not well-formed XML.";
    if (byte < 0x20)
        return "A control character is not allowed.";
    return "The character " + quoted({context + offset, 1}) + " is not allowed here.";
}

} // namespace

std::string quoted(std::string_view text) {
    return '"' + std::string(text) + '"';
}

std::string tagged(std::string_view name) {
    return '<' + std::string(name) + '>';
}

std::string exceededBound(XML_Parser parser, std::string_view element, int depth) {
    if (std::size_t(XML_GetCurrentByteCount(parser)) > ManifestReader::maxTagLength)
        return tagTooLong;
    if (depth > ManifestReader::maxDepth)
        return "More than " + std::to_string(ManifestReader::maxDepth) + " elements are nested.";
    if (XML_GetSpecifiedAttributeCount(parser) / 2 > ManifestReader::maxAttributes)
        return "The element " + tagged(element) + " has more than " +
               std::to_string(ManifestReader::maxAttributes) + " attributes.";
    return {};
}

std::string describeXmlError(XML_Parser parser, std::string_view noun) {
    const std::string ends = "The " + std::string(noun) + " ends in the middle of a ";
    const XML_Error error = XML_GetErrorCode(parser);
    switch (error) {
    case XML_ERROR_UNCLOSED_TOKEN:
    case XML_ERROR_PARTIAL_CHAR:
        if (isAtAmpersand(parser))
            return bareAmpersand;
        return ends + "tag or character.";
    case XML_ERROR_UNCLOSED_CDATA_SECTION:
        return ends + "CDATA section.";
    case XML_ERROR_TAG_MISMATCH:
        return "The end tag does not match the open element.";
    case XML_ERROR_DUPLICATE_ATTRIBUTE:
        return "An attribute occurs twice on one element.";
    case XML_ERROR_UNDEFINED_ENTITY:
        return "The entity is not defined; only &amp;, &lt;, &gt;, &quot; and &apos; are.";
    case XML_ERROR_SYNTAX:
        return "The text is not XML: it does not start with a tag.";
    case XML_ERROR_BAD_CHAR_REF:
        return "The reference denotes a character that XML does not allow.";
    case XML_ERROR_JUNK_AFTER_DOC_ELEMENT:
        return "There is content after the end of the root element.";
    case XML_ERROR_MISPLACED_XML_PI:
        return "The XML declaration must be at the very start.";
    case XML_ERROR_INVALID_TOKEN:
        return describeBadByte(parser);
    default:
        return std::string("The text is not well-formed XML: ") + XML_ErrorString(error) + '.';
    }
}

std::string withPosition(const std::string &sentence, SourcePosition position) {
    if (sentence.empty() || position.line == 0)
        return sentence;
    return "Line " + std::to_string(position.line) + ", column " + std::to_string(position.column) +
           ": " + sentence;
}

} // namespace Tano
