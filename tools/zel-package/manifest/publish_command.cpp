#include "program_command.h"

#include "arguments/format_option.h"
#include "arguments/native_text.h"
#include "console/json_list.h"
#include "console/library_text.h"
#include "manifest_source.h"
#include "output_file.h"

#include <packagemodel/package_info_model.h>
#include <packagemodel/package_scripts.h>

#include <QRegularExpression>

#include <algorithm>

namespace ZelPackage {
namespace {

QList<QCommandLineOption> options() {
    return {outputOption(), formatOption()};
}

bool writeManifest(const Tano::PackageInfo &package, const QString &file, const QString &output,
                   Console &console) {
    const std::string content = package.saveToManifestContent();
    if (!content.empty())
        return writeOutput(output, content, console);
    console.printMessage(file, translatedSentence(package.errorString()));
    return false;
}

bool holdsScriptVariants(const Tano::PackageInfo &package) {
    const std::set<std::string> codes = package.languageCodes();
    return std::any_of(codes.begin(), codes.end(), [](const std::string &code) {
        return Zel::fromUtf8(code).endsWith(Zel::PackageModel::k_sa.text());
    });
}

// A text with a malformed speech script.
struct MalformedScript {
    QString field;
    Tano::SourcePosition position; // of the field in the manifest
    Tano::SourcePosition positionInScript;
    QString text;
};

MalformedScript malformedScript(const Zel::PackageModel::ScriptError &error,
                                const Tano::ManifestReader &reader) {
    static const QRegularExpression form(
        QRegularExpression::anchoredPattern(QStringLiteral("Line (\\d+), column (\\d+): (.*)")),
        QRegularExpression::DotMatchesEverythingOption);
    const auto match = form.match(error.text);
    return {error.path,
            reader.position(Zel::toUtf8(error.path)),
            {match.captured(1).toULongLong(), match.captured(2).toULongLong()},
            translatedSentence(Zel::toUtf8(match.captured(3)))};
}

void report(const QString &file, const MalformedScript &script, Console &console) {
    console.printMessage(file, script.position,
                         QCoreApplication::translate(
                             "zel-package", "%1: Malformed speech script (line %2, column %3): %4")
                             .arg(script.field)
                             .arg(script.positionInScript.line)
                             .arg(script.positionInScript.column)
                             .arg(script.text));
}

QJsonObject toJson(const QString &file, const MalformedScript &script) {
    return {{QStringLiteral("file"), withVisibleBytes(file)},
            {QStringLiteral("line"), qint64(script.position.line)},
            {QStringLiteral("column"), qint64(script.position.column)},
            {QStringLiteral("field"), script.field},
            {QStringLiteral("scriptLine"), qint64(script.positionInScript.line)},
            {QStringLiteral("scriptColumn"), qint64(script.positionInScript.column)},
            {QStringLiteral("text"), script.text}};
}

// The texts that cannot be converted to plain text.
std::vector<MalformedScript> malformedScripts(const Zel::PackageInfoModel &package,
                                              const std::string &content) {
    std::vector<MalformedScript> scripts;
    const auto errors = Zel::PackageModel::scriptErrors(&package);
    if (errors.isEmpty())
        return scripts;
    Tano::ManifestReader reader(Tano::ManifestReader::Positions::Keep);
    Tano::PackageInfo record;
    static_cast<void>(reader.readContent(content, record)); // was read successfully before
    for (const Zel::PackageModel::ScriptError &error : errors)
        scripts.push_back(malformedScript(error, reader));
    return scripts;
}

void report(const QString &file, const std::vector<MalformedScript> &scripts, OutputFormat format,
            Console &console) {
    if (format == OutputFormat::Text) {
        for (const MalformedScript &script : scripts)
            report(file, script, console);
        return;
    }
    JsonListForm form(QLatin1String("malformedScripts"), console);
    for (const MalformedScript &script : scripts)
        form.add(toJson(file, script));
    form.finish();
}

bool checkOutput(const QString &file, const QString &output, OutputFormat format,
                 Console &console) {
    if (!checkIsOther(file, output, console))
        return false;
    if (format == OutputFormat::Json && isStandardOutput(output)) {
        console.printMessage(QCoreApplication::translate(
            "zel-package", "--format json prints to standard output and needs an --output."));
        return false;
    }
    return true;
}

ExitStatus publish(const QString &file, const Manifest &manifest, const QString &output,
                   OutputFormat format, Console &console) {
    Zel::PackageInfoModel package(manifest.package);
    package.trimExtraInfo();
    const auto malformed = malformedScripts(package, manifest.content);
    if (!malformed.empty()) {
        report(file, malformed, format, console);
        return Findings;
    }
    if (holdsScriptVariants(manifest.package))
        console.printMessage(
            file, QCoreApplication::translate("zel-package",
                                              "This manifest was published before; the scripts "
                                              "stored beside its texts are dropped."));
    package.genPlainTextFromScript();
    package.syncRecord();
    if (!writeManifest(package.packageInfo(), file, output, console))
        return Failure;
    if (format == OutputFormat::Json)
        report(file, malformed, format, console);
    return Fine;
}

ExitStatus run(const QCommandLineParser &arguments, Console &console) {
    const QString file = arguments.positionalArguments().constFirst();
    const QString output = arguments.value(outputOptionName);
    const auto format = formatOf(arguments, console);
    if (!format || !checkOutput(file, output, *format, console))
        return Failure;
    const auto manifest = readManifest(file, console);
    return manifest ? publish(file, *manifest, output, *format, console) : Failure;
}

} // namespace

const ProgramCommand publishCommand{
    "publish",
    QT_TRANSLATE_NOOP("zel-package", "Write a manifest for publication"),
    QT_TRANSLATE_NOOP("zel-package", "FILE [-o OUT] [--format text|json]"),
    QT_TRANSLATE_NOOP(
        "zel-package",
        "Writes the manifest in FILE for publication: removes texts in languages that the package "
        "no longer offers, and replaces speech scripts by plain text, keeping the scripts in a "
        "private-use variant of their language. If a text is a malformed script, reports it and "
        "writes nothing. '-' reads standard input."),
    1,
    1,
    options,
    run,
    1,
};

} // namespace ZelPackage
