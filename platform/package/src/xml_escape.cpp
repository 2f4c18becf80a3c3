#include "xml_escape.h"

#include <array>
#include <cstdint>

namespace Tano {
namespace {

enum class Class : std::uint8_t { Plain, Markup, Quote, CarriageReturn, Space, MultiByte, Invalid };

constexpr std::array<Class, 256> makeClasses() {
    std::array<Class, 256> classes{};
    for (std::size_t byte = 0; byte < 256; ++byte)
        classes[byte] =
            byte < 0x20 ? Class::Invalid : (byte < 0x80 ? Class::Plain : Class::MultiByte);
    for (const char markup : {'&', '<', '>'})
        classes[static_cast<unsigned char>(markup)] = Class::Markup;
    classes['"'] = Class::Quote;
    classes['\r'] = Class::CarriageReturn;
    classes['\n'] = Class::Space;
    classes['\t'] = Class::Space;
    return classes;
}

constexpr auto classes = makeClasses();

// The length of the character at `at`; 0 if it is not valid UTF-8 (RFC 3629) or outside the Char
// production of XML 1.0.
std::size_t multiByteLength(std::string_view text, std::size_t at) {
    const auto byte = [&](std::size_t i) {
        return at + i < text.size() ? static_cast<unsigned char>(text[at + i]) : 0U;
    };
    const auto continues = [&](std::size_t i) { return (byte(i) & 0xC0U) == 0x80U; };

    const unsigned lead = byte(0);
    if (lead >= 0xC2 && lead <= 0xDF)
        return continues(1) ? 2 : 0;
    if ((lead & 0xF0U) == 0xE0U) {
        if (!continues(1) || !continues(2))
            return 0;
        const unsigned code = (lead & 0x0FU) << 12 | (byte(1) & 0x3FU) << 6 | (byte(2) & 0x3FU);
        const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
        return code < 0x800 || isSurrogate || code >= 0xFFFE ? 0 : 3;
    }
    if (lead >= 0xF0 && lead <= 0xF4) {
        if (!continues(1) || !continues(2) || !continues(3))
            return 0;
        const unsigned code = (lead & 0x07U) << 18 | (byte(1) & 0x3FU) << 12 |
                              (byte(2) & 0x3FU) << 6 | (byte(3) & 0x3FU);
        return code < 0x10000 || code > 0x10FFFF ? 0 : 4;
    }
    return 0;
}

std::string_view escapeOf(char c) {
    switch (c) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '"':
        return "&quot;";
    case '\r':
        return "&#13;";
    case '\n':
        return "&#10;";
    default:
        return "&#9;";
    }
}

} // namespace

std::size_t appendEscaped(std::string &out, std::string_view text, EscapeFor where) {
    std::size_t start = 0; // of the pending characters that need no escaping
    for (std::size_t i = 0; i < text.size();) {
        const Class kind = classes[static_cast<unsigned char>(text[i])];
        const bool standsForItself =
            kind == Class::Plain ||
            (where == EscapeFor::Text && (kind == Class::Quote || kind == Class::Space));
        if (standsForItself) {
            ++i;
            continue;
        }
        if (kind == Class::MultiByte) {
            const std::size_t length = multiByteLength(text, i);
            if (length == 0)
                return i;
            i += length;
            continue;
        }
        if (kind == Class::Invalid)
            return i;
        out.append(text, start, i - start);
        out += escapeOf(text[i]);
        start = ++i;
    }
    out.append(text, start, std::string::npos);
    return std::string::npos;
}

} // namespace Tano
