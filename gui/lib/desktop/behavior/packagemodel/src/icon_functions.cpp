// The entry points of package_icon.cpp for other sources, including moc's, which refers to every
// slot. Must not use QtGui.

#include "package_icon.h"

#include "package_info_data.h"

namespace Zel {

const IconFunctions *iconFunctions = nullptr;

void PackageInfoModel::setIcon(const QIcon &newIcon) {
    if (iconFunctions)
        iconFunctions->set(newIcon, m_data->icon, *this);
}

void readIconBeside(const QFile &manifest, PackageInfoModel &package) {
    if (iconFunctions)
        iconFunctions->readBeside(manifest, package);
}

void copyIcon(const PackageInfoModel &from, PackageInfoModel &to) {
    if (iconFunctions)
        iconFunctions->copy(from, to);
}

} // namespace Zel
