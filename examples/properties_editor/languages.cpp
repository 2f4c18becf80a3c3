#include "languages.h"

namespace Editor {

Zel::RobotLanguage languageOf(const QString &code) {
    const Zel::RobotLanguage known = Zel::robotLanguage(code);
    return known.isoCode().isEmpty()
               ? Zel::RobotLanguage(Zel::ISOCode(code), Zel::NuanceCode(QString()))
               : known;
}

QString languageName(const QString &code) {
    return languageOf(code).uiName();
}

} // namespace Editor
