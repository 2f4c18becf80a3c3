#include "field_table.h"

namespace ZelPackage {

bool Edit::refuse(const QString &message) const {
    m_console.tell(m_assignment.field, message);
    return false;
}

std::optional<Zel::RobotLanguage> Edit::language(const QString &key) const {
    return languageArgument(key, m_console);
}

std::optional<Zel::SoftwareVersion> Edit::version() const {
    bool isVersion = true;
    const Zel::SoftwareVersion version = Zel::SoftwareVersionUtils::fromString(value(), &isVersion);
    if (isVersion || value().isEmpty())
        return version;
    refuse(QCoreApplication::translate(
               "zel-package", "'%1' is not a version: numbers with dots between them, as in 2.1.")
               .arg(value()));
    return {};
}

std::optional<bool> Edit::flag() const {
    const bool isTrue = value() == QLatin1String("true");
    if (isTrue || value() == QLatin1String("false"))
        return isTrue;
    refuse(
        QCoreApplication::translate("zel-package", "'%1' is neither true nor false.").arg(value()));
    return {};
}

std::optional<int> Edit::index(const QString &key, int size) const {
    bool isNumber = false;
    const int index = key.toInt(&isNumber);
    if (isNumber && index >= 0 && index < size)
        return index;
    refuse(size == 0
               ? QCoreApplication::translate("zel-package",
                                             "The list has no item '%1'; it is empty, and [+] "
                                             "appends to it.")
                     .arg(key)
               : QCoreApplication::translate("zel-package",
                                             "The list has no item '%1'; there are 0 to %2, and "
                                             "[+] appends one.")
                     .arg(key, QString::number(size - 1)));
    return {};
}

} // namespace ZelPackage
