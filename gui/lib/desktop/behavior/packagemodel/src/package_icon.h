#pragma once

#include <memory>

class QFile;
class QIcon;

namespace Zel {

class PackageInfoModel;
struct PackageIcon;

// Only package_icon.cpp uses QtGui. Other sources reach it through `iconFunctions`, so that a
// program linked with the static library loads QtGui only if it needs icons.

struct IconFunctions {
    void (*set)(const QIcon &newIcon, std::shared_ptr<PackageIcon> &current,
                PackageInfoModel &package);
    void (*readBeside)(const QFile &manifest, PackageInfoModel &package);
    void (*copy)(const PackageInfoModel &from, PackageInfoModel &to);
};

/// Set by the object file that defines PackageInfoModel::icon() and defaultIcon(); null in a
/// statically linked program that calls neither.
extern const IconFunctions *iconFunctions;

/// Loads "icon.png" beside a manifest as the package's icon if it exists, is acceptable, and there
/// is a QGuiApplication. Logs a rejected file.
void readIconBeside(const QFile &manifest, PackageInfoModel &package);

void copyIcon(const PackageInfoModel &from, PackageInfoModel &to);

} // namespace Zel
