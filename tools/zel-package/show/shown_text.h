#pragma once

#include <zel/language.h>

#include <QCoreApplication>
#include <QString>

namespace ZelPackage {

/// A text as an application shows it in a language, with a remark if it is a fallback.
struct ShownText {
    QString text;
    QString remark; ///< empty if the text is in the language
};

/// The text in `language`, else in the default language, else `identifier` with `identifierRemark`.
/// `textIn` returns the text in a language.
template<typename TextIn>
ShownText shownText(TextIn textIn, const Zel::RobotLanguage &language,
                    const QString &identifier = {}, const QString &identifierRemark = {}) {
    const QString text = textIn(language);
    if (!text.isEmpty())
        return {text, {}};
    const Zel::RobotLanguage fallback = Zel::Language::defaultLanguage();
    const QString fallbackText = textIn(fallback);
    if (!fallbackText.isEmpty())
        return {fallbackText,
                QCoreApplication::translate("zel-package", "missing in %1; this is %2")
                    .arg(language.isoCode(), fallback.isoCode())};
    const QString remark =
        QCoreApplication::translate("zel-package", "missing in %1").arg(language.isoCode());
    return {
        identifier,
        identifier.isEmpty()
            ? remark
            : QCoreApplication::translate("zel-package", "%1; %2").arg(remark, identifierRemark)};
}

} // namespace ZelPackage
