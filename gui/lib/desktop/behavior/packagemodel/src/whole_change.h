#pragma once

#include <packagemodel/package_info_model.h>

#include <QPointer>

#include <cstdint>

namespace Zel {

/// A load or an assignment, which replaces the whole package in many announced steps. Meanwhile,
/// receivers may delete the package or start another one, which supersedes this one.
class WholeChange {
public:
    WholeChange(PackageInfoModel *package, std::uint64_t &counter)
        : m_package(package)
        , m_counter(counter)
        , m_number(++counter) {}

    /// Whether to continue with the next step.
    bool isCurrent() const { return m_package && m_counter == m_number; }

private:
    QPointer<PackageInfoModel> m_package;
    std::uint64_t &m_counter; // of the package
    std::uint64_t m_number;
};

} // namespace Zel
