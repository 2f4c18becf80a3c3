#pragma once

#include <zel/zel_version_export.h>

#include <QMetaType>
#include <QSharedDataPointer>
#include <QString>

#include <cstdint>
#include <initializer_list>
#include <vector>

namespace Zel {

class SoftwareVersionData;

/// A dotted version number such as 2.5.0: an ordered list of unsigned 32-bit fields.
///
/// An implicitly shared value: copies are cheap, and a change detaches. A version without fields
/// means "not set".
///
/// ```cpp
/// Zel::SoftwareVersion version{2, 5};
/// version.setFieldsCount(3);
/// Zel::SoftwareVersionUtils::toString(version); // -> 2.5.0
/// (version < Zel::SoftwareVersion{2, 10, 0});     // -> true
/// ```
class ZEL_VERSION_EXPORT SoftwareVersion {
public:
    /// A version that is not set.
    SoftwareVersion();
    /// @{
    /// A version with these fields, the most significant first.
    SoftwareVersion(std::initializer_list<std::uint32_t> fields);
    explicit SoftwareVersion(std::vector<std::uint32_t> fields);
    /// @}
    /// @{
    /// Copies share their data; a moved-from version is not set.
    SoftwareVersion(const SoftwareVersion &other);
    SoftwareVersion(SoftwareVersion &&other) noexcept;
    ~SoftwareVersion();
    SoftwareVersion &operator=(const SoftwareVersion &other);
    SoftwareVersion &operator=(SoftwareVersion &&other) noexcept;
    /// @}

    /// The number of fields; 0 means that the version is not set.
    int fieldsCount() const;

    /// The field at index `i`; 0 for an index out of range.
    std::uint32_t versionField(int i) const;

    /// Appends zero fields or drops trailing fields so that there are exactly `n`.
    void setFieldsCount(unsigned n);

    /// All fields, the most significant first. The reference is valid until the version changes.
    const std::vector<std::uint32_t> &fields() const;

private:
    QSharedDataPointer<SoftwareVersionData> m_data; // null while there are no fields
};

/// Whether both have the same fields: 1.0 and 1.0.0 differ.
ZEL_VERSION_EXPORT bool operator==(const SoftwareVersion &a, const SoftwareVersion &b);

/// Lexicographic over the fields; a proper prefix is less.
ZEL_VERSION_EXPORT bool operator<(const SoftwareVersion &a, const SoftwareVersion &b);

/// Whether the fields differ.
inline bool operator!=(const SoftwareVersion &a, const SoftwareVersion &b) {
    return !(a == b);
}

/// Parsing and printing of SoftwareVersion.
namespace SoftwareVersionUtils {

/// Parses decimal fields separated by single dots; surrounding white space is ignored. Anything
/// else, including the empty text and fields beyond 32 bits, returns the empty version and sets
/// `ok`, if given, to false.
ZEL_VERSION_EXPORT SoftwareVersion fromString(const QString &text, bool *ok = nullptr);

/// Joins the fields with dots; empty for a version without fields.
ZEL_VERSION_EXPORT QString toString(const SoftwareVersion &version);

} // namespace SoftwareVersionUtils
} // namespace Zel

Q_DECLARE_METATYPE(Zel::SoftwareVersion)
