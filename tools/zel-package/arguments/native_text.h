#pragma once

#include <QByteArray>
#include <QString>

#include <string>

namespace ZelPackage {

/// Arguments and file names as text, without losing bytes that are not UTF-8: each such byte, say
/// 0xFF, is the single surrogate U+DCFF, which no Unicode text has. nativeBytes(nativeText(bytes))
/// is `bytes`.
QString nativeText(const QByteArray &bytes);

/// The bytes of a text in UTF-8; those that nativeText() has kept are themselves again.
std::string nativeBytes(const QString &text);

/// Whether the text has bytes that are not UTF-8.
bool hasForeignBytes(const QString &text);

/// The text with each such byte shown as in "<FF>".
QString withVisibleBytes(const QString &text);

} // namespace ZelPackage
