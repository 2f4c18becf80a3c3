#include "program_command.h"

#include "arguments/native_text.h"
#include "manifest_source.h"

#include <packagemodel/package_info_model.h>
#include <packagemodel/package_scripts.h>

#include <QLoggingCategory>

#include <algorithm>

namespace ZelPackage {
namespace {

const QLatin1String outputOption("output");

QList<QCommandLineOption> options() {
    return {{{QStringLiteral("o"), outputOption},
             QCoreApplication::translate("zel-package",
                                         "Write to this file; to standard output when none is "
                                         "given, or '-'."),
             QStringLiteral("OUT"),
             QStringLiteral("-")}};
}

bool writeManifest(const QString &output, const QString &file, const Tano::PackageInfo &package,
                   Console &console) {
    if (!isStandardStream(output)) {
        if (package.saveToManifestFile(nativeBytes(output)))
            return true;
        console.tell(output, QString::fromStdString(package.errorString()));
        return false;
    }
    const std::string content = package.saveToManifestContent();
    if (content.empty()) {
        console.tell(file, QString::fromStdString(package.errorString()));
        return false;
    }
    console.printBytes(content);
    return true;
}

bool holdsScriptVariants(const Tano::PackageInfo &package) {
    const std::set<std::string> codes = package.languageCodes();
    return std::any_of(codes.begin(), codes.end(), [](const std::string &code) {
        return Zel::fromUtf8(code).endsWith(Zel::PackageModel::k_sa.text());
    });
}

// To standard error, since the manifest goes to standard output.
void tellErrors(const QVector<Zel::PackageModel::ScriptError> &errors, const QString &file,
                const std::string &content, Console &console) {
    if (errors.isEmpty())
        return;
    Tano::ManifestReader reader(Tano::ManifestReader::Positions::Keep);
    Tano::PackageInfo package;
    static_cast<void>(reader.readContent(content, package)); // it has been read before
    for (const Zel::PackageModel::ScriptError &error : errors) {
        console.tell(file, reader.position(error.path.toStdString()),
                     QCoreApplication::translate("zel-package", "%1 stays as it is: %2")
                         .arg(error.path, error.text));
    }
}

ExitStatus run(const QCommandLineParser &arguments, Console &console) {
    const QString file = arguments.positionalArguments().constFirst();
    const auto manifest = readManifest(file, console);
    if (!manifest)
        return Failure;
    if (holdsScriptVariants(manifest->package))
        console.tell(file, QCoreApplication::translate(
                               "zel-package", "This has been published before; the scripts that "
                                              "it keeps beside its texts are dropped."));
    // What the library would log is told here, with its place in the file.
    QLoggingCategory::setFilterRules(QStringLiteral("PackageModel.Package.critical=false"));

    Zel::PackageInfoModel package(manifest->package);
    package.trimExtraInfo();
    const auto errors = Zel::PackageModel::scriptErrors(&package);
    package.genPlainTextFromScript();
    package.syncRecord();
    if (!writeManifest(arguments.value(outputOption), file, package.packageInfo(), console))
        return Failure;
    tellErrors(errors, file, manifest->content, console);
    return errors.isEmpty() ? Fine : Findings;
}

} // namespace

const ProgramCommand publishCommand{
    "publish",
    QT_TRANSLATE_NOOP("zel-package", "Make the manifest of a package that is to be published"),
    QT_TRANSLATE_NOOP("zel-package", "FILE [-o OUT]"),
    QT_TRANSLATE_NOOP("zel-package",
                      "Writes the manifest in FILE as it is published: without texts in languages "
                      "that the package no longer offers, and with plain text in place of speech "
                      "scripts, which are kept in a private-use variant of their language. A text "
                      "that is a malformed script stays as it is, and is told of. '-' reads "
                      "standard input."),
    1,
    1,
    options,
    run,
    1,
};

} // namespace ZelPackage
