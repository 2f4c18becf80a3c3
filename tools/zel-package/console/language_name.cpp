#include "language_name.h"

#include <QCoreApplication>

#include <array>
#include <unicode/uloc.h>

namespace ZelPackage {

QString nameOf(const Zel::RobotLanguage &language) {
    const QString source = QStringLiteral("en-US");
    //: The language of this translation, as RFC 5646 writes it.
    const QString shown = QCoreApplication::translate("zel-package", "en-US");
    if (shown == source || language.name().isEmpty())
        return language.uiName();
    // Qt has the names of languages in English and in themselves only.
    std::array<UChar, 200> name{};
    UErrorCode status = U_ZERO_ERROR;
    const auto length =
        uloc_getDisplayName(language.isoCode().toUtf8().constData(), shown.toUtf8().constData(),
                            name.data(), int32_t(name.size()), &status);
    const bool isKnown = U_SUCCESS(status) != 0 && status != U_USING_DEFAULT_WARNING;
    return isKnown ? QString::fromUtf16(name.data(), length) : language.uiName();
}

} // namespace ZelPackage
