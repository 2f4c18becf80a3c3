#include "tano/version.h"

#include <charconv>

namespace Tano::version {
namespace {

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view whiteSpace = " \t\n\v\f\r";
    const auto first = text.find_first_not_of(whiteSpace);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(whiteSpace) - first + 1);
}

} // namespace

std::optional<Version> fromString(std::string_view text) {
    text = trimmed(text);
    const char *const end = text.data() + text.size();
    Version version;
    for (const char *next = text.data();; ++next) {
        std::uint32_t field = 0;
        const auto [stop, error] = std::from_chars(next, end, field);
        if (error != std::errc())
            return std::nullopt;
        version.push_back(field);
        if (stop == end)
            return version;
        if (*stop != '.')
            return std::nullopt;
        next = stop;
    }
}

std::string toString(const Version &version) {
    std::string text;
    for (const std::uint32_t field : version) {
        if (!text.empty())
            text += '.';
        text += std::to_string(field);
    }
    return text;
}

} // namespace Tano::version
