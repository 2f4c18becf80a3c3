#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

class QIcon;

namespace Zel {

/// Identifies the appearance of an icon. Replaces the rendered image, which takes 400 MiB for a
/// vector icon.
struct IconFingerprint {
    QImage::Format format = QImage::Format_Invalid;
    QSize size;
    QByteArray digest;
};

bool operator==(const IconFingerprint &a, const IconFingerprint &b);

/// Renders the icon at its largest size to compute the fingerprint; a null icon is not rendered.
/// Requires a QGuiApplication.
IconFingerprint fingerprint(const QIcon &icon);

} // namespace Zel
