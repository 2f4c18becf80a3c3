#include "icon_fingerprint.h"

#include <QCryptographicHash>
#include <QIcon>
#include <QPixmap>

namespace Zel {
namespace {

constexpr int largestExtent = 10042; // pixels

QByteArray digestOf(const QImage &image) {
    // Indexed pixels mean nothing without their colors, and lines end in padding.
    if (image.depth() < 16)
        return digestOf(image.convertToFormat(QImage::Format_ARGB32));
    QCryptographicHash hash(QCryptographicHash::Sha1);
    const int bytesPerLine = image.width() * (image.depth() / 8);
    for (int y = 0; y < image.height(); ++y)
        hash.addData(QByteArray::fromRawData(reinterpret_cast<const char *>(image.constScanLine(y)),
                                             bytesPerLine));
    return hash.result();
}

} // namespace

bool operator==(const IconFingerprint &a, const IconFingerprint &b) {
    return a.format == b.format && a.size == b.size && a.digest == b.digest;
}

IconFingerprint fingerprint(const QIcon &icon) {
    if (icon.isNull())
        return {};
    const QImage image =
        icon.pixmap(QSize(largestExtent, largestExtent), QIcon::Normal, QIcon::Off).toImage();
    if (image.isNull())
        return {};
    return {image.format(), image.size(), digestOf(image)};
}

} // namespace Zel
