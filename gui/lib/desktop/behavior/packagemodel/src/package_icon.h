#pragma once

#include <memory>

class QFile;
class QIcon;

namespace Zel {

class PackageInfoModel;
struct PackageIcon;

// package_icon.cpp alone uses QtGui. The other sources reach it through `iconFunctions`, so that a
// program that links the library's objects from an archive loads QtGui only if it needs icons.

struct IconFunctions {
    void (*set)(const QIcon &newIcon, std::shared_ptr<PackageIcon> &current,
                PackageInfoModel &package);
    void (*readBeside)(const QFile &manifest, PackageInfoModel &package);
    void (*copy)(const PackageInfoModel &from, PackageInfoModel &to);
};

/// Installed by the object that defines PackageInfoModel::icon() and defaultIcon(); null in a
/// program that calls neither and links from an archive.
extern const IconFunctions *iconFunctions;

/// Reads "icon.png" beside a manifest as the icon of the package, if it exists, is acceptable, and
/// there is a QGuiApplication. Logs a file that is rejected.
void readIconBeside(const QFile &manifest, PackageInfoModel &package);

void copyIcon(const PackageInfoModel &from, PackageInfoModel &to);

} // namespace Zel
