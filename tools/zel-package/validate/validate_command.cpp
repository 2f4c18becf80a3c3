#include "program_command.h"

#include "manifest_folders.h"
#include "set/patch_names.h"
#include "validation.h"

#include <algorithm>

namespace ZelPackage {
namespace {

void checkAll(const QStringList &files, bool showsDiff, Validation &validation, Console &console) {
    const QStringList names = showsDiff ? patchNames(files) : files;
    constexpr int fewFiles = 100; // few enough to need no progress
    const int step = std::max(1, int(files.size()) / 100);
    for (int i = 0; i < files.size(); ++i) {
        if (files.size() > fewFiles && i % step == 0)
            console.showProgress(QCoreApplication::translate("zel-package", "Checked %1 of %2")
                                     .arg(i)
                                     .arg(files.size()));
        validation.check(files.at(i), names.at(i));
    }
    console.showProgress({});
}

// Empty if there are no findings.
QString summaryOf(const Report &report, bool isDryRun) {
    if (report.errors + report.warnings + report.notes + report.unreadable + report.fixed == 0)
        return {};
    QString summary =
        QCoreApplication::translate("zel-package", "Manifests: %1, errors: %2, warnings: %3")
            .arg(report.files)
            .arg(report.errors)
            .arg(report.warnings);
    const auto add = [&](const QString &text, int count) {
        if (count > 0)
            summary += text.arg(count);
    };
    add(QCoreApplication::translate("zel-package", ", notes: %1"), report.notes);
    add(QCoreApplication::translate("zel-package", ", malformed: %1"), report.malformed);
    add(QCoreApplication::translate("zel-package", ", unreadable: %1"), report.unreadable);
    add(isDryRun ? QCoreApplication::translate("zel-package", ", to be fixed: %1")
                 : QCoreApplication::translate("zel-package", ", fixed: %1"),
        report.fixed);
    return summary;
}

ExitStatus validate(const ValidateRequest &request, Console &results, Console &output) {
    const auto writer = request.makeWriter(results);
    Validation validation(request, *writer, results, output);
    if (!validation.prepare())
        return Failure;
    writer->begin();
    const QStringList files =
        manifestsOf(request.arguments, [&](const QString &folder, const QString &reason) {
            validation.reportError(folder, reason);
        });
    checkAll(files, request.showsDiff, validation, results);
    const Report report = validation.finish();
    writer->finish(report);
    const QString summary = summaryOf(report, request.showsDiff);
    if (!request.isQuiet && !summary.isEmpty())
        results.printMessage(summary);
    return report.status;
}

ExitStatus run(const QCommandLineParser &arguments, Console &console) {
    const auto request = validateRequest(arguments, console);
    if (!request)
        return Failure;
    console.setColor(request->color);
    if (!request->printsManifests())
        return validate(*request, console, console);
    Console results(STDERR_FILENO);
    results.setColor(request->color);
    const ExitStatus status = validate(*request, results, console);
    return results.finish() ? status : Failure;
}

} // namespace

const ProgramCommand validateCommand{
    "validate",
    QT_TRANSLATE_NOOP("zel-package", "Check manifests, and fix them"),
    QT_TRANSLATE_NOOP("zel-package",
                      "FILE|FOLDER... [--format text|json|sarif|github] "
                      "[--fail-on error|warning|note] [--ignore ID[,ID]...]... "
                      "[--fix] [--unsafe-fixes] [--diff] [--config FILE] [--baseline FILE] "
                      "[--write-baseline FILE] [--stdin-name NAME] [--quiet] "
                      "[--color auto|always|never] [--explain]"),
    QT_TRANSLATE_NOOP("zel-package",
                      "Prints the findings in each manifest by line, as FILE:LINE:COLUMN: error: "
                      "text [id]; a missing field is reported at the element that should contain "
                      "it. A FOLDER means every manifest.xml in or below it. 'zel-package explain "
                      "ID' explains a rule. '-' reads standard input; with --fix, the manifest "
                      "goes to standard output and the findings to standard error."),
    1,
    ProgramCommand::anyNumber,
    validateOptions,
    run,
};

} // namespace ZelPackage
