#pragma once

#include <QString>

namespace ZelPackage {

/// Whether a clean path leads to a place below the folder that it is relative to.
bool isBelow(const QString &path);

/// The clean path of a file: relative to the working directory if the file is below it, else
/// absolute.
QString pathBelowHere(const QString &file);

/// The clean path of a file relative to a folder, with ".." where it is elsewhere.
QString pathFrom(const QString &folder, const QString &file);

} // namespace ZelPackage
