#include "zel/software_version.h"

#include <tano/version.h>

#include <utility>

namespace Zel {

class SoftwareVersionData : public QSharedData {
public:
    explicit SoftwareVersionData(std::vector<std::uint32_t> initial)
        : fields(std::move(initial)) {}

    std::vector<std::uint32_t> fields;
};

SoftwareVersion::SoftwareVersion() = default;
SoftwareVersion::SoftwareVersion(const SoftwareVersion &other) = default;
SoftwareVersion::SoftwareVersion(SoftwareVersion &&other) noexcept = default;
SoftwareVersion::~SoftwareVersion() = default;
SoftwareVersion &SoftwareVersion::operator=(const SoftwareVersion &other) = default;
SoftwareVersion &SoftwareVersion::operator=(SoftwareVersion &&other) noexcept = default;

SoftwareVersion::SoftwareVersion(std::initializer_list<std::uint32_t> fields)
    : SoftwareVersion(std::vector<std::uint32_t>(fields)) {
}

SoftwareVersion::SoftwareVersion(std::vector<std::uint32_t> fields)
    : m_data(fields.empty() ? nullptr : new SoftwareVersionData(std::move(fields))) {
}

int SoftwareVersion::fieldsCount() const {
    return static_cast<int>(fields().size());
}

std::uint32_t SoftwareVersion::versionField(int i) const {
    return i >= 0 && i < fieldsCount() ? fields()[static_cast<std::size_t>(i)] : 0;
}

void SoftwareVersion::setFieldsCount(unsigned n) {
    if (n == fields().size())
        return;
    std::vector<std::uint32_t> resized = fields();
    resized.resize(n);
    *this = SoftwareVersion(std::move(resized));
}

const std::vector<std::uint32_t> &SoftwareVersion::fields() const {
    static const std::vector<std::uint32_t> none;
    return m_data ? m_data->fields : none;
}

bool operator==(const SoftwareVersion &a, const SoftwareVersion &b) {
    return a.fields() == b.fields();
}

bool operator<(const SoftwareVersion &a, const SoftwareVersion &b) {
    return a.fields() < b.fields();
}

namespace SoftwareVersionUtils {

SoftwareVersion fromString(const QString &text, bool *ok) {
    auto fields = Tano::version::fromString(text.trimmed().toStdString());
    if (ok)
        *ok = fields.has_value();
    return SoftwareVersion(std::move(fields).value_or(Tano::version::Version()));
}

QString toString(const SoftwareVersion &version) {
    return QString::fromStdString(Tano::version::toString(version.fields()));
}

} // namespace SoftwareVersionUtils
} // namespace Zel
