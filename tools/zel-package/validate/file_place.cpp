#include "file_place.h"

#include <QDir>

namespace ZelPackage {

bool isBelow(const QString &path) {
    return QDir::isRelativePath(path) && path != QLatin1String("..") &&
           !path.startsWith(QLatin1String("../"));
}

QString pathBelowHere(const QString &file) {
    const QString path = QDir::cleanPath(file);
    if (isBelow(path))
        return path;
    const QString relative = pathFrom(QDir::currentPath(), path);
    return isBelow(relative) ? relative : QDir::cleanPath(QDir::current().filePath(path));
}

QString pathFrom(const QString &folder, const QString &file) {
    return QDir(folder).relativeFilePath(QDir::cleanPath(QDir::current().filePath(file)));
}

} // namespace ZelPackage
