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
/// It is an implicitly shared value: copies are cheap, and a change detaches. A version without
/// fields means "not set".
class ZEL_VERSION_EXPORT SoftwareVersion {
public:
    SoftwareVersion();
    SoftwareVersion(std::initializer_list<std::uint32_t> fields);
    explicit SoftwareVersion(std::vector<std::uint32_t> fields);
    SoftwareVersion(const SoftwareVersion &other);
    SoftwareVersion(SoftwareVersion &&other) noexcept;
    ~SoftwareVersion();
    SoftwareVersion &operator=(const SoftwareVersion &other);
    SoftwareVersion &operator=(SoftwareVersion &&other) noexcept;

    /// How many fields there are; 0 means that the version is not set.
    int fieldsCount() const;

    /// Field `i`, counted from 0; 0 for an index outside the version.
    std::uint32_t versionField(int i) const;

    /// Pads with zero fields, or drops trailing fields, until there are exactly `n`.
    void setFieldsCount(unsigned n);

    /// All fields, the most significant in front; valid until the version changes.
    const std::vector<std::uint32_t> &fields() const;

private:
    QSharedDataPointer<SoftwareVersionData> m_data; // null while there are no fields
};

/// True when both have the same fields: 1.0 and 1.0.0 differ.
ZEL_VERSION_EXPORT bool operator==(const SoftwareVersion &a, const SoftwareVersion &b);

/// Lexicographic over the fields; a proper prefix is less.
ZEL_VERSION_EXPORT bool operator<(const SoftwareVersion &a, const SoftwareVersion &b);

inline bool operator!=(const SoftwareVersion &a, const SoftwareVersion &b) {
    return !(a == b);
}

namespace SoftwareVersionUtils {

/// Parses decimal fields separated by single dots, with white space around the whole ignored.
/// Anything else, an empty text and a field beyond 32 bits included, gives the empty version and,
/// where `ok` is given, sets it to false.
ZEL_VERSION_EXPORT SoftwareVersion fromString(const QString &text, bool *ok = nullptr);

/// The fields joined by dots; empty for a version without fields.
ZEL_VERSION_EXPORT QString toString(const SoftwareVersion &version);

} // namespace SoftwareVersionUtils
} // namespace Zel

Q_DECLARE_METATYPE(Zel::SoftwareVersion)
