#include "program_command.h"

#include "arguments/format_option.h"
#include "arguments/language_argument.h"
#include "console/json_text.h"
#include "manifest/manifest_source.h"
#include "show_text.h"

#include <packagemodel/package_info_model.h>
#include <packagemodel/package_json.h>

namespace ZelPackage {
namespace {

const QLatin1String languageOption("language");

QList<QCommandLineOption> options() {
    return {{languageOption,
             QCoreApplication::translate(
                 "zel-package", "Show every text in this language; '!' marks missing ones."),
             QStringLiteral("CODE")},
            formatOption()};
}

ExitStatus run(const QCommandLineParser &arguments, Console &console) {
    const auto format = formatOf(arguments, console);
    if (!format)
        return Failure;
    if (format == OutputFormat::Json && arguments.isSet(languageOption)) {
        console.printMessage(QCoreApplication::translate(
            "zel-package", "--format json shows all languages and takes no --language."));
        return Failure;
    }
    const auto manifest = readManifest(arguments.positionalArguments().constFirst(), console);
    if (!manifest)
        return Failure;
    // The model registers the languages in the manifest.
    const Zel::PackageInfoModel package(manifest->package);

    std::optional<Zel::RobotLanguage> language;
    if (arguments.isSet(languageOption)) {
        language = languageArgument(arguments.value(languageOption), console);
        if (!language)
            return Failure;
    }
    if (format == OutputFormat::Json)
        Zel::PackageModel::writeJson(
            &package, [&](const QByteArray &json) { console.print(printableJson(json)); });
    else
        console.print(textOf(package, language, console));
    return Fine;
}

} // namespace

const ProgramCommand showCommand{
    "show",
    QT_TRANSLATE_NOOP("zel-package", "Show a manifest"),
    QT_TRANSLATE_NOOP("zel-package", "FILE [--language CODE] [--format text|json]"),
    QT_TRANSLATE_NOOP("zel-package",
                      "Shows all fields of the manifest in FILE, and how much of it is translated. "
                      "A missing text is replaced as in an application: by the text in the default "
                      "language or, for names, by the uid or path. '-' reads standard input."),
    1,
    1,
    options,
    run,
    1,
};

} // namespace ZelPackage
