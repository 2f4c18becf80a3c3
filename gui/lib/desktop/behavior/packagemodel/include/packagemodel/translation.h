#pragma once

#include <packagemodel/packagemodel_export.h>

#include <QLocale>
#include <QString>

namespace Zel {

/// Makes the application speak the locale's language: installs a translator of the catalogue, owned
/// by the application object, which has to exist. The library's own catalogue is "packagemodel";
/// those of the programs are named after them.
///
/// The locale's languages are tried in the order of the user's preference, until one is found or
/// the language of the source texts, English, comes first. Returns false, and changes nothing, when
/// the texts stay as they are.
PACKAGEMODEL_EXPORT bool
installTranslation(const QString &catalogue = QStringLiteral("packagemodel"),
                   const QLocale &locale = QLocale::system());

/// The language of the application's texts as RFC 5646 writes it: that of the installed catalogue
/// "packagemodel", else "en-US".
PACKAGEMODEL_EXPORT QString translationLanguage();

} // namespace Zel
