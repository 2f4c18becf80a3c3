#pragma once

#include <QString>
#include <QStringList>

/// Lays out text on a terminal, measured in columns: 2 for a wide character (East Asian, emoji), 0
/// for a combining one.
namespace ZelPackage {

/// Whether a character is invisible, or would control the terminal or the writing direction.
bool isUnprintable(uint code);

/// The text with isUnprintable() characters shown as "<U+202E>", except for joiners and variation
/// selectors that emoji and scripts need, and with bytes that are not UTF-8 shown as "<FF>".
QString printable(const QString &text);
/// Like printable(), except for the characters in `kept`.
QString printableExcept(const QString &kept, const QString &text);

/// The width of the text in columns.
int displayWidth(const QString &text);

/// The text without trailing white space.
QString withoutSpacesAtEnd(const QString &text);

/// The text, padded with spaces to `width` columns.
QString padded(const QString &text, int width);

/// The text, made printable and wrapped to `width` columns. Breaks where the script allows it,
/// within a word only if it is longer than a line. A line feed starts a new line.
QStringList wrapped(const QString &text, int width);

} // namespace ZelPackage
