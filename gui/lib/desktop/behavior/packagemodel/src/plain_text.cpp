#include <packagemodel/package_scripts.h>

#include <packagemodel/text_conversion.h>

#include <tano/package_helper.h>

#include <exception>

namespace Zel::PackageModel {

PlainText plainTextOf(const QString &script) {
    try {
        return {fromUtf8(Tano::PackageHelper::getHumanReadableText(toUtf8(script))), {}};
    } catch (const std::exception &exception) {
        return {{}, QString::fromUtf8(exception.what())};
    }
}

} // namespace Zel::PackageModel
