#pragma once

#include <QString>

namespace ZelPackage {

/// Whether a clean relative path stays within its base folder.
bool isBelow(const QString &path);

/// The clean path of a file: relative to the working directory if the file is below it, otherwise
/// absolute.
QString pathBelowHere(const QString &file);

/// The clean path of a file relative to a folder, starting with ".." if it is outside.
QString pathFrom(const QString &folder, const QString &file);

} // namespace ZelPackage
