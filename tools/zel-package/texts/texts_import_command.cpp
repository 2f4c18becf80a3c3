#include "program_command.h"

#include "arguments/native_text.h"
#include "console/library_text.h"
#include "console/text_diff.h"
#include "manifest/manifest_source.h"
#include "set/patch_names.h"

#include <packagemodel/record_editor.h>
#include <packagemodel/text_conversion.h>
#include <packagemodel/text_exchange.h>

#include <tano/save_file.h>

#include <algorithm>

namespace ZelPackage {
namespace {

using Zel::PackageModel::TextImport;
using Zel::PackageModel::TextOutcome;
using Zel::PackageModel::TextUnit;

const QLatin1String dryRunOption("dry-run");
const QLatin1String forceOption("force");

QList<QCommandLineOption> options() {
    return {{dryRunOption,
             QCoreApplication::translate("zel-package",
                                         "Write nothing; print the changes as a unified diff.")},
            {forceOption,
             QCoreApplication::translate(
                 "zel-package", "Also import texts whose source has changed since the export.")}};
}

// The units of all files, in file order.
struct Units {
    QVector<TextUnit> units;
    QStringList files; // the file of each unit
};

bool readUnits(const QString &file, Units &all, Console &console) {
    QString reason;
    const auto content = readContent(file, reason);
    if (!content) {
        console.printMessage(file, reason);
        return false;
    }
    const auto parsed = Zel::PackageModel::parseXliff(QByteArray::fromStdString(*content));
    if (!parsed.error.isEmpty()) {
        console.printMessage(file, {std::size_t(parsed.line), std::size_t(parsed.column)},
                             parsed.error);
        return false;
    }
    all.units += parsed.units;
    while (all.files.size() < all.units.size())
        all.files += file;
    return true;
}

int countOf(const TextImport &import, TextOutcome outcome) {
    return int(std::count_if(import.units.begin(), import.units.end(),
                             [&](const auto &unit) { return unit.outcome == outcome; }));
}

// Returns whether all texts were imported.
bool report(const QString &manifest, const TextImport &import, const Units &given,
            Console &console) {
    bool isFine = true;
    for (int i = 0; i < import.units.size(); ++i) {
        const QString &reason = import.units.at(i).reason;
        if (reason.isEmpty())
            continue;
        isFine = false;
        const TextUnit &unit = given.units.at(i);
        console.printMessage(given.files.at(i), {std::size_t(unit.line), std::size_t(unit.column)},
                             Zel::fromUtf8(unit.path.toString()) % QStringLiteral(": ") % reason);
    }
    const int imported = import.error.isEmpty() ? countOf(import, TextOutcome::Imported) : 0;
    console.printMessage(
        manifest, QCoreApplication::translate("zel-package",
                                              "Texts: %1 imported, %2 unchanged, %3 untranslated, "
                                              "%4 skipped.")
                      .arg(imported)
                      .arg(countOf(import, TextOutcome::Unchanged))
                      .arg(countOf(import, TextOutcome::Untranslated))
                      .arg(import.units.size() - countOf(import, TextOutcome::Unchanged) -
                           countOf(import, TextOutcome::Untranslated) - imported));
    return isFine;
}

bool save(const QString &file, const Manifest &manifest, const std::string &content,
          Console &console) {
    if (isStandardStream(file)) {
        console.printBytes(content);
        return true;
    }
    if (content == manifest.content)
        return true;
    const Tano::SaveResult result = Tano::saveFile(
        {nativeBytes(file), content, Tano::FileFingerprint::ofContent(manifest.content)});
    if (!result)
        console.printMessage(translatedSentence(result.error));
    return bool(result);
}

ExitStatus importUnits(const QString &file, const Manifest &manifest, const Units &given,
                       const QCommandLineParser &arguments, Console &console) {
    Zel::RecordEditor editor(manifest.package);
    const TextImport import =
        importTexts(editor, given.units, {arguments.isSet(forceOption), false});
    const ExitStatus status = report(file, import, given, console) ? Fine : Findings;
    if (!import.error.isEmpty()) {
        if (status == Fine)
            console.printMessage(file, import.error);
        return Findings;
    }
    const Tano::PackageInfo record = editor.record();
    const std::string content =
        import.edits.isEmpty() ? manifest.content : record.saveToManifestContent();
    if (content.empty()) {
        console.printMessage(file, translatedSentence(record.errorString()));
        return Failure;
    }
    if (arguments.isSet(dryRunOption)) {
        console.print(
            unifiedDiff(patchNames({file}).constFirst(), manifest.content, content, console));
        return status;
    }
    return save(file, manifest, content, console) ? status : Failure;
}

ExitStatus run(const QCommandLineParser &arguments, Console &console) {
    QStringList files = arguments.positionalArguments();
    const QString file = files.takeFirst();
    const auto manifest = readManifest(file, console);
    bool isFine = manifest.has_value();
    Units given;
    for (const QString &xliff : files)
        isFine = readUnits(xliff, given, console) && isFine;
    return isFine ? importUnits(file, *manifest, given, arguments, console) : Failure;
}

} // namespace

const ProgramCommand textsImportCommand{
    "texts import",
    QT_TRANSLATE_NOOP("zel-package", "Import texts from translators"),
    QT_TRANSLATE_NOOP("zel-package", "FILE XLIFF... [--dry-run] [--force]"),
    QT_TRANSLATE_NOOP(
        "zel-package",
        "Imports translations from XLIFF files written by 'texts export' into the manifest in "
        "FILE. Lists grow to the translator's length, and a new language becomes a description "
        "language. Texts whose behavior was removed or whose source has changed are reported and "
        "skipped. If a text is a malformed speech script, nothing is imported. The exit status is "
        "1 if a text is skipped. '-' reads standard input; as FILE, it also writes to standard "
        "output."),
    2,
    ProgramCommand::anyNumber,
    options,
    run,
};

} // namespace ZelPackage
