#pragma once

#include <QString>
#include <QStringList>

/// Text on a terminal, measured in columns: 2 for a wide character (East Asian, emoji), none for a
/// combining one.
namespace ZelPackage {

/// Whether a character is invisible or would control the terminal or the direction of writing.
bool isUnprintable(uint code);

/// The text with each character that isUnprintable() replaced as in "<U+202E>", apart from joiners
/// and variation selectors where emoji and scripts need them, and each byte that is not UTF-8 as in
/// "<FF>".
QString printable(const QString &text);
/// The same, apart from the characters in `kept` as well.
QString printableExcept(const QString &kept, const QString &text);

/// How many columns the text takes.
int displayWidth(const QString &text);

/// The text up to its last character that is no white space.
QString withoutSpacesAtEnd(const QString &text);

/// The text followed by spaces up to `width` columns.
QString padded(const QString &text, int width);

/// The text, made printable, in lines of at most `width` columns; broken where its script allows
/// it, within a word only where that is longer than a line. A line feed starts a new line.
QStringList wrapped(const QString &text, int width);

} // namespace ZelPackage
