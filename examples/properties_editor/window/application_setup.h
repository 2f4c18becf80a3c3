#pragma once

#include <QLocale>

namespace Editor {

/// Sets up style, colors, names and translations of the application. Must be called once, before
/// the first window is created.
void setUpApplication(const QLocale &locale = QLocale::system());

/// Installs the translations of the editor, the library and Qt in one language, the first one of
/// the locale that the editor supports.
void installTexts(const QLocale &locale);

} // namespace Editor
