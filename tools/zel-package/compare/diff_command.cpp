#include "program_command.h"

#include "arguments/format_option.h"
#include "console/json_list.h"
#include "console/text_layout.h"
#include "manifest/manifest_source.h"

#include <packagemodel/change_words.h>
#include <packagemodel/package_difference.h>
#include <packagemodel/package_info_model.h>
#include <packagemodel/package_json.h>

#include <QJsonArray>

namespace ZelPackage {
namespace {

QList<QCommandLineOption> options() {
    return {formatOption()};
}

void printText(const Tano::PackageInfo &from, const Zel::PackageModel::Edits &edits,
               Console &console) {
    if (edits.isEmpty())
        console.print(
            QCoreApplication::translate(
                "zel-package", "Only comments, unknown content or the notation of values differ.") %
            u'\n');
    Zel::PackageInfoModel package(from);
    Zel::PackageModel::visitChanges(
        &package, edits, [&](const QString &line) { console.print(printable(line) % u'\n'); });
}

void printJson(const Zel::PackageModel::Edits &edits, Console &console) {
    JsonListForm form(QLatin1String("edits"), console);
    const auto document = QJsonDocument::fromJson(Zel::PackageModel::toJson(edits));
    for (const auto &edit : document.object().value(QLatin1String("edits")).toArray())
        form.add(edit.toObject());
    form.finish();
}

ExitStatus compare(const Tano::PackageInfo &from, const Tano::PackageInfo &to, OutputFormat format,
                   Console &console) {
    const Zel::PackageInfoModel before(from);
    const Zel::PackageInfoModel after(to);
    const auto edits = Zel::PackageModel::edits(&before, &after);
    const bool isSame = from == to;
    if (format == OutputFormat::Json)
        printJson(edits, console);
    else if (!isSame)
        printText(from, edits, console);
    return isSame ? Fine : Findings;
}

ExitStatus run(const QCommandLineParser &arguments, Console &console) {
    const auto format = formatOf(arguments, console);
    const QStringList files = arguments.positionalArguments();
    if (!format)
        return Failure;
    const auto from = readManifest(files.at(0), console);
    const auto to = readManifest(files.at(1), console);
    return from && to ? compare(from->package, to->package, *format, console) : Failure;
}

} // namespace

const ProgramCommand diffCommand{
    "diff",
    QT_TRANSLATE_NOOP("zel-package", "Compare two manifests by field"),
    QT_TRANSLATE_NOOP("zel-package", "A B [--format text|json]"),
    QT_TRANSLATE_NOOP("zel-package",
                      "Prints the changes from manifest A to manifest B, one per line. With "
                      "--format json, prints them as edits for 'set A --edits'. The exit status is "
                      "0 if the manifests are equal, 1 if they differ, and 2 after an error. One "
                      "of them may be '-' for standard input."),
    2,
    2,
    options,
    run,
};

} // namespace ZelPackage
