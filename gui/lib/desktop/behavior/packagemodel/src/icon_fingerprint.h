#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

class QIcon;

namespace Zel {

/// What an icon looks like, for telling whether another one looks the same. It stands in for the
/// rendered image, which takes 400 MiB for a vector icon.
struct IconFingerprint {
    QImage::Format format = QImage::Format_Invalid;
    QSize size;
    QByteArray digest;
};

bool operator==(const IconFingerprint &a, const IconFingerprint &b);

/// Renders the icon, as large as it goes, to take its fingerprint; a null icon is not rendered.
/// Needs a QGuiApplication.
IconFingerprint fingerprint(const QIcon &icon);

} // namespace Zel
