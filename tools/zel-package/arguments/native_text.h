#pragma once

#include <QByteArray>
#include <QString>

#include <string>

namespace ZelPackage {

/// Represents arguments and file names as text, even if they are not valid UTF-8: each invalid
/// byte, say 0xFF, becomes the lone surrogate U+DCFF, which no valid Unicode text contains.
/// nativeBytes() is the inverse.
QString nativeText(const QByteArray &bytes);

/// The text as UTF-8, with the bytes escaped by nativeText() restored.
std::string nativeBytes(const QString &text);

/// Whether the text contains bytes that are not UTF-8.
bool hasForeignBytes(const QString &text);

/// The text with each such byte shown as "<FF>".
QString withVisibleBytes(const QString &text);

} // namespace ZelPackage
