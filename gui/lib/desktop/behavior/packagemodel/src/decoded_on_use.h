#pragma once

#include <utility>

namespace Zel {

/// What a model caches for a field of its record, decoded at the first access. The field must be
/// accessed before it is edited.
template<typename Values, typename Record>
class DecodedOnUse {
public:
    using Decode = Values (*)(const Record &record);

    /// Refers to the record, which must live as long as this cache, at the same address.
    DecodedOnUse(const Record &record, Decode decode)
        : m_record(record)
        , m_decode(decode) {}
    /// The same values for a copy of the other cache's record.
    DecodedOnUse(const Record &copiedRecord, const DecodedOnUse &other)
        : m_record(copiedRecord)
        , m_decode(other.m_decode)
        , m_values(other.m_values) {}
    DecodedOnUse(const DecodedOnUse &) = delete;
    DecodedOnUse &operator=(const DecodedOnUse &) = delete;

    bool isDecoded() const { return !m_decode; }

    const Values &values() const {
        if (m_decode)
            m_values = std::exchange(m_decode, nullptr)(m_record);
        return m_values;
    }
    Values &values() { return const_cast<Values &>(std::as_const(*this).values()); }

private:
    const Record &m_record;
    mutable Decode m_decode; // null once decoded
    mutable Values m_values;
};

} // namespace Zel
