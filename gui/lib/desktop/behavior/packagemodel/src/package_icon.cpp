#include "package_icon.h"

#include "copies.h"
#include "icon_fingerprint.h"
#include "package_info_data.h"

#include <tano/path.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QIcon>

#include <optional>

namespace Zel {

struct PackageIcon {
    QIcon icon;
    std::optional<IconFingerprint> fingerprint; // taken when first needed
};

namespace {

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

void readBeside(const QFile &manifest, PackageInfoModel &package) {
    const QString name = manifest.fileName();
    if (name.isEmpty() || !hasDisplay())
        return;
    const QString path = QFileInfo(name).dir().filePath(QStringLiteral("icon.png"));
    const QIcon icon = QFile::exists(path) ? QIcon(path) : QIcon();
    if (!icon.isNull())
        package.setIcon(icon);
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
