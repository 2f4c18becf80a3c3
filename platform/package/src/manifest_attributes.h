#pragma once

#include "record_builder.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace Tano {

/// The attributes of the current element, checked against its rule.
class ManifestAttributes {
public:
    /// Takes expat's list. Returns an error message, empty on success.
    std::string read(const ElementRule &rule, const char **attributes);

    /// The values of the rule's attributes; absent ones are empty.
    RecordBuilder::Values &values() { return m_values; }
    /// The value that distinguishes the element from its siblings, empty if there is none.
    const std::string &key(const ElementRule &rule) const;
    bool hasUnknown() const { return m_hasUnknown; }
    static bool isKnown(const ElementRule &rule, std::string_view name);

private:
    bool isPresent(std::size_t attribute) const { return (m_present & (1U << attribute)) != 0; }
    std::string checkValue(const ElementRule &rule, std::size_t attribute) const;

    RecordBuilder::Values m_values;
    std::uint32_t m_present = 0; // a bit for each value
    static_assert(mostKnownAttributes <= 32);
    bool m_hasUnknown = false;
};

} // namespace Tano
