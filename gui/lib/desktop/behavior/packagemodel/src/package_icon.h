#pragma once

class QFile;

namespace Zel {

class PackageInfoModel;

// One source deals with icons, and uses QtGui. A program that has the library built in and shows
// none can bring its own in place of it, and start without QtGui and the libraries of a display.

/// Reads "icon.png" beside a manifest as the icon of the package, where there is one and a display
/// to show it on.
void readIconBeside(const QFile &manifest, PackageInfoModel &package);

void copyIcon(const PackageInfoModel &from, PackageInfoModel &to);

} // namespace Zel
