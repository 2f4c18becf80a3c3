#include "format_option.h"

#include "word_check.h"

#include <QCoreApplication>

namespace ZelPackage {
namespace {

const QLatin1String optionName("format");
const QLatin1String textFormat("text");
const QLatin1String jsonFormat("json");

} // namespace

QCommandLineOption formatOption() {
    return {optionName,
            QCoreApplication::translate("zel-package", "The output format: text or json."),
            QStringLiteral("FORMAT"), textFormat};
}

std::optional<OutputFormat> formatOf(const QCommandLineParser &arguments, Console &console) {
    const QString format = arguments.value(optionName);
    if (!checkWord(format, {textFormat, jsonFormat},
                   QCoreApplication::translate("zel-package", "Unknown format '%1'%2"),
                   QCoreApplication::translate("zel-package", "; it is either text or json."),
                   console))
        return {};
    return format == jsonFormat ? OutputFormat::Json : OutputFormat::Text;
}

} // namespace ZelPackage
