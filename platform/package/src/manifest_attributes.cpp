#include "manifest_attributes.h"

#include "xml_reading.h"

#include <tano/manifest_reader.h>

#include <algorithm>

namespace Tano {
namespace {

bool isDecimal(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

std::string checkFormat(const std::string &format) {
    if (format == formatVersion)
        return {};
    const bool isNewer = isDecimal(format) && format.front() != '0';
    return "The format " + quoted(format) +
           (isNewer ? " is newer than the one that this version reads, "
                    : " is unknown; this version reads ") +
           quoted(formatVersion) + '.';
}

} // namespace

bool ManifestAttributes::isKnown(const ElementRule &rule, std::string_view name) {
    return std::any_of(rule.attributes.begin(), rule.attributes.end(),
                       [&](const AttributeRule &attribute) { return attribute.name == name; });
}

const std::string &ManifestAttributes::key(const ElementRule &rule) const {
    static const std::string none;
    return rule.keyAttribute < 0 ? none : m_values[std::size_t(rule.keyAttribute)];
}

std::string ManifestAttributes::read(const ElementRule &rule, const char **attributes) {
    const std::size_t known = rule.attributes.size();
    m_present = 0;
    m_hasUnknown = false;
    for (std::size_t i = 0; i < known; ++i)
        m_values[i].clear();

    for (; *attributes; attributes += 2) {
        const std::string_view name(attributes[0]);
        std::size_t i = 0;
        while (i < known && rule.attributes[i].name != name)
            ++i;
        if (i == known) {
            m_hasUnknown = true;
        } else {
            m_values[i] = attributes[1];
            m_present |= 1U << i;
        }
    }

    // Missing attributes are reported before invalid values.
    for (std::size_t i = 0; i < known; ++i) {
        if (rule.attributes[i].isRequired() && !isPresent(i))
            return "The element " + tagged(rule.name) + " lacks the attribute " +
                   quoted(rule.attributes[i].name) + '.';
    }
    std::string sentence;
    for (std::size_t i = 0; i < known && sentence.empty(); ++i)
        sentence = checkValue(rule, i);
    return sentence;
}

std::string ManifestAttributes::checkValue(const ElementRule &rule, std::size_t attribute) const {
    const AttributeRule &known = rule.attributes[attribute];
    const std::string &value = m_values[attribute];
    if (known.kind == AttributeKind::Format)
        return checkFormat(value);
    const auto refused = [&](const std::string &why) {
        return "The attribute " + quoted(known.name) + " of " + tagged(rule.name) + " is " + why;
    };
    if (known.kind == AttributeKind::Key && value.size() > ManifestReader::maxKeyLength)
        return refused("longer than 4 KiB.");
    if (known.kind == AttributeKind::Flag && isPresent(attribute) && value != yes && value != no)
        return refused(quoted(value) + R"( instead of "true" or "false".)");
    return {};
}

} // namespace Tano
