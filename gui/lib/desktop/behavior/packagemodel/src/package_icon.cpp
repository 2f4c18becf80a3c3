#include "package_icon.h"

#include "copies.h"
#include "icon_fingerprint.h"
#include "log_category.h"
#include "package_info_data.h"

#include <tano/log.h>
#include <tano/path.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QIcon>
#include <QImageReader>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace Zel {

struct PackageIcon {
    QIcon icon;
    std::optional<IconFingerprint> fingerprint; // computed on demand
};

namespace {

constexpr int largestExtent = 4096;                      // pixels
constexpr qint64 largestFile = qint64(16) * 1024 * 1024; // bytes

bool hasDisplay() {
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance());
}

void set(const QIcon &newIcon, std::shared_ptr<PackageIcon> &shared, PackageInfoModel &package) {
    const QIcon icon = copyOf(newIcon);
    if (!shared)
        shared = std::make_shared<PackageIcon>();
    PackageIcon &current = *shared;
    if ((icon.isNull() && current.icon.isNull()) || icon.cacheKey() == current.icon.cacheKey())
        return;
    std::optional<IconFingerprint> look;
    if (hasDisplay()) {
        if (!current.fingerprint)
            current.fingerprint = fingerprint(current.icon);
        look = fingerprint(icon);
        if (look == current.fingerprint)
            return;
    }
    current = {icon, look};
    Q_EMIT package.iconUpdated(icon);
}

// The reason why an icon file is rejected, empty if it was read or does not exist.
using Rejection = QString;

// Opens a possibly hostile file: opening a named pipe must not block, and the checks apply to the
// opened file.
Rejection openRegularFile(const QString &path, QFile &file) {
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor == -1)
        return errno == ENOENT ? QString() : qt_error_string(errno);
    if (!file.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle)) {
        ::close(descriptor);
        return file.errorString();
    }
    struct stat status {};
    if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode))
        return QStringLiteral("it is not a regular file");
    if (status.st_size > largestFile)
        return QStringLiteral("it is larger than %1 bytes").arg(largestFile);
    return {};
}

// Checks the dimensions in the header before decoding any pixels.
Rejection readPng(QFile &file, QImage &image) {
    QImageReader reader(&file, "png");
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size();
    if (!size.isValid())
        return QStringLiteral("it is not a PNG image");
    if (std::max(size.width(), size.height()) > largestExtent)
        return QStringLiteral("its %1 x %2 pixels are more than %3 x %3")
            .arg(size.width())
            .arg(size.height())
            .arg(largestExtent);
    return reader.read(&image) ? Rejection() : reader.errorString();
}

void readBeside(const QFile &manifest, PackageInfoModel &package) {
    const QString name = manifest.fileName();
    if (name.isEmpty() || !hasDisplay())
        return;
    const QString path = QFileInfo(name).dir().filePath(QStringLiteral("icon.png"));
    QFile file;
    QImage image;
    Rejection rejection = openRegularFile(path, file);
    if (rejection.isEmpty() && file.isOpen())
        rejection = readPng(file, image);
    if (!rejection.isEmpty())
        Tano::log::write(logCategory, Tano::log::Level::Warning, "loadFromManifestFile",
                         QStringLiteral("Ignoring %1: %2.").arg(path, rejection));
    if (rejection.isEmpty() && !image.isNull())
        package.setIcon(QIcon(QPixmap::fromImage(image)));
}

void copy(const PackageInfoModel &from, PackageInfoModel &to) {
    to.setIcon(from.icon());
}

constexpr IconFunctions functions{set, readBeside, copy};
[[maybe_unused]] const bool isInstalled = (iconFunctions = &functions, true);

} // namespace

QIcon PackageInfoModel::defaultIcon() {
    static const QIcon icon(fromUtf8(
        Tano::path::findData("zentrix", "media/images/icons/_png/default_app.png", false)));
    return icon;
}

QIcon PackageInfoModel::icon() const {
    return m_data->icon ? m_data->icon->icon : QIcon();
}

} // namespace Zel
