#include "file_name.h"

#include <QFile>

namespace Tano {

std::string nativeName(const std::string &path) {
    const QString text = QString::fromStdString(path);
    return text.toStdString() == path ? QFile::encodeName(text).toStdString() : path;
}

} // namespace Tano
