#pragma once

#include <QLocale>

namespace Editor {

/// Gives the application its style, colors, names and texts: to be called once, before the first
/// window.
void setUpApplication(const QLocale &locale = QLocale::system());

/// Installs the texts of the editor, the library and Qt in one language, the first of the locale's
/// that the editor is translated into.
void installTexts(const QLocale &locale);

} // namespace Editor
