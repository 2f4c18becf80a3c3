#include "program_command.h"

#include "arguments/language_argument.h"
#include "arguments/native_text.h"
#include "manifest/manifest_source.h"
#include "manifest/output_file.h"

#include <packagemodel/package_info_model.h>
#include <packagemodel/text_exchange.h>

#include <zel/language.h>

namespace ZelPackage {
namespace {

const QLatin1String languageOption("language");
const QLatin1String sourceOption("source");
const QLatin1String missingOption("missing");

QList<QCommandLineOption> options() {
    return {{languageOption,
             QCoreApplication::translate("zel-package", "The language to translate into."),
             QStringLiteral("CODE")},
            {sourceOption,
             QCoreApplication::translate("zel-package",
                                         "The language to translate from; by default %1 or, if the "
                                         "package does not support it, its first language.")
                 .arg(Zel::Language::defaultLanguage().isoCode()),
             QStringLiteral("CODE")},
            {missingOption,
             QCoreApplication::translate("zel-package", "Write only untranslated texts.")},
            outputOption()};
}

Zel::RobotLanguage defaultSource(const Zel::PackageInfoModel &package) {
    const Zel::RobotLanguage usual = Zel::Language::defaultLanguage();
    const Zel::RobotLanguages supported = package.supportedLanguages();
    return supported.empty() || package.hasLanguageSupport(usual) ? usual : supported.front();
}

bool exportTexts(const QString &file, const Zel::PackageInfoModel &package,
                 const QCommandLineParser &arguments, Console &console) {
    const auto language = languageArgument(arguments.value(languageOption), console);
    const auto source = arguments.isSet(sourceOption)
                            ? languageArgument(arguments.value(sourceOption), console)
                            : defaultSource(package);
    if (!language || !source)
        return false;
    QString error;
    const QByteArray xliff =
        Zel::PackageModel::exportXliff(&package,
                                       {language->isoCode(), source->isoCode(),
                                        arguments.isSet(missingOption), withVisibleBytes(file)},
                                       &error);
    if (!error.isEmpty()) {
        console.printMessage(file, error);
        return false;
    }
    return writeOutput(arguments.value(outputOptionName), xliff.toStdString(), console);
}

ExitStatus run(const QCommandLineParser &arguments, Console &console) {
    if (!arguments.isSet(languageOption)) {
        console.printMessage(
            QCoreApplication::translate("zel-package", "Missing option --language CODE."));
        return Failure;
    }
    const QString file = arguments.positionalArguments().constFirst();
    if (!checkIsOther(file, arguments.value(outputOptionName), console))
        return Failure;
    const auto manifest = readManifest(file, console);
    // The languages in the manifest are known while the model exists.
    const bool isDone =
        manifest && exportTexts(file, Zel::PackageInfoModel(manifest->package), arguments, console);
    return isDone ? Fine : Failure;
}

} // namespace

const ProgramCommand textsExportCommand{
    "texts export",
    QT_TRANSLATE_NOOP("zel-package", "Export texts for translators"),
    QT_TRANSLATE_NOOP("zel-package", "FILE --language CODE [--source CODE] [--missing] [-o OUT]"),
    QT_TRANSLATE_NOOP("zel-package",
                      "Writes the texts of a manifest as XLIFF 1.2 for translation tools: names, "
                      "descriptions, tags, trigger sentences and loading responses. 'texts import' "
                      "reads it back. '-' reads standard input."),
    1,
    1,
    options,
    run,
    1,
};

} // namespace ZelPackage
