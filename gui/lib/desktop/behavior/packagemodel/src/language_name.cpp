#include <packagemodel/language_name.h>

#include <packagemodel/translation.h>

#include <array>
#include <unicode/uloc.h>

namespace Zel::PackageModel {

QString languageName(const RobotLanguage &language) {
    const QString shown = translationLanguage();
    if (shown == QLatin1String("en-US") || language.name().isEmpty())
        return language.uiName();
    // Qt only has the English and native names of languages.
    std::array<UChar, 200> name{};
    UErrorCode status = U_ZERO_ERROR;
    const auto length =
        uloc_getDisplayName(language.isoCode().toUtf8().constData(), shown.toUtf8().constData(),
                            name.data(), int32_t(name.size()), &status);
    const bool isKnown = U_SUCCESS(status) != 0 && status != U_USING_DEFAULT_WARNING;
    return isKnown ? QString::fromUtf16(name.data(), length) : language.uiName();
}

} // namespace Zel::PackageModel
