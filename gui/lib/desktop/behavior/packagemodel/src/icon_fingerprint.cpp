#include "icon_fingerprint.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QIcon>
#include <QPixmap>

namespace Zel {
namespace {

constexpr int largestExtent = 10042; // pixels

QByteArray digestOf(const QImage &image) {
    // Indexed pixels depend on the color table, and scan lines are padded.
    if (image.depth() < 16)
        return digestOf(image.convertToFormat(QImage::Format_ARGB32));
    QCryptographicHash hash(QCryptographicHash::Sha1);
    const int bytesPerLine = image.width() * (image.depth() / 8);
    for (int y = 0; y < image.height(); ++y)
        hash.addData(QByteArray::fromRawData(reinterpret_cast<const char *>(image.constScanLine(y)),
                                             bytesPerLine));
    return hash.result();
}

// Renders at a device pixel ratio of 1. QIcon would use that of the application: 1.6 GB instead of
// 400 MB at a ratio of 2, and a different image after the window moves to another screen.
QPixmap rendered(const QIcon &icon) {
    const QSize size(largestExtent, largestExtent);
#if QT_VERSION_MAJOR < 6
    const bool wasScaled = QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, false);
    const QPixmap pixmap = icon.pixmap(size, QIcon::Normal, QIcon::Off);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, wasScaled);
    return pixmap;
#else
    return icon.pixmap(size, 1.0, QIcon::Normal, QIcon::Off);
#endif
}

} // namespace

bool operator==(const IconFingerprint &a, const IconFingerprint &b) {
    return a.format == b.format && a.size == b.size && a.digest == b.digest;
}

IconFingerprint fingerprint(const QIcon &icon) {
    if (icon.isNull())
        return {};
    const QImage image = rendered(icon).toImage();
    if (image.isNull())
        return {};
    return {image.format(), image.size(), digestOf(image)};
}

} // namespace Zel
