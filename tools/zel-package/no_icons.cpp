// Stands in for the library's source that deals with icons. The program shows none, and starts in
// about half the time where neither QtGui nor the libraries of a display below it are loaded.

#include "package_icon.h"

#include <packagemodel/package_info_model.h>

namespace Zel {

void PackageInfoModel::setIcon(const QIcon &) {
}

void readIconBeside(const QFile &, PackageInfoModel &) {
}

void copyIcon(const PackageInfoModel &, PackageInfoModel &) {
}

} // namespace Zel
