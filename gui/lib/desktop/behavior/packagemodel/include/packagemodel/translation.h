#pragma once

#include <packagemodel/packagemodel_export.h>

#include <QLocale>
#include <QString>

namespace Zel {

/// Installs a translator for a catalogue, owned by the application object, which must exist. The
/// catalogue of the library is "packagemodel"; those of the programs have the names of the
/// programs.
///
/// The locale's languages are tried in the user's order of preference, until a translation is found
/// or English, the language of the source texts, comes first. Returns false if no translator was
/// installed.
PACKAGEMODEL_EXPORT bool
installTranslation(const QString &catalogue = QStringLiteral("packagemodel"),
                   const QLocale &locale = QLocale::system());

/// The language tag (RFC 5646) of the application's texts: that of the installed catalogue
/// "packagemodel", or "en-US".
PACKAGEMODEL_EXPORT QString translationLanguage();

} // namespace Zel
