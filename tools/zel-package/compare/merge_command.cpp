#include "program_command.h"

#include "arguments/native_text.h"
#include "console/library_text.h"
#include "manifest/manifest_source.h"
#include "manifest/output_file.h"

#include <packagemodel/change_words.h>
#include <packagemodel/package_merge.h>
#include <packagemodel/text_conversion.h>

#include <tano/save_file.h>

namespace ZelPackage {
namespace {

using Zel::PackageModel::MergeConflict;

const QLatin1String pathOption("path");

QList<QCommandLineOption> options() {
    return {
        {{QStringLiteral("o"), outputOptionName},
         QCoreApplication::translate("zel-package",
                                     "Write to this file instead of OURS; '-' is standard output."),
         QStringLiteral("OUT")},
        {pathOption,
         QCoreApplication::translate("zel-package", "Use PATH for the manifest in messages: git "
                                                    "merges copies, and passes the path as %P."),
         QStringLiteral("PATH")}};
}

// A version of the manifest and its name in messages.
struct Side {
    QString file;
    QString name;
};

struct Request {
    Side base;
    Side ours;
    Side theirs;
    QString output;
};

Request requestOf(const QCommandLineParser &arguments) {
    const QStringList files = arguments.positionalArguments();
    const QString path = arguments.value(pathOption);
    const auto side = [&](int index, const QString &name) {
        return Side{files.at(index), path.isEmpty() ? files.at(index) : name.arg(path)};
    };
    return {side(0, QCoreApplication::translate("zel-package", "%1 (base)")),
            side(1, QStringLiteral("%1")),
            side(2, QCoreApplication::translate("zel-package", "%1 (theirs)")),
            arguments.isSet(outputOptionName) ? arguments.value(outputOptionName) : files.at(1)};
}

bool hasLineWith(const std::string &content, const std::string &start) {
    return content.compare(0, start.size(), start) == 0 ||
           content.find('\n' + start) != std::string::npos;
}

// Whether git left conflict markers after a failed merge.
bool hasConflictMarkers(const std::string &content) {
    return hasLineWith(content, "<<<<<<< ") && hasLineWith(content, ">>>>>>> ");
}

// Reads a side of the merge. An empty file means an empty package: git passes one as the base of
// files added in both branches.
std::optional<Manifest> readSide(const Side &side, Console &console) {
    ManifestError error;
    const auto content = readContent(side.file, error.text);
    if (content && content->empty())
        return Manifest();
    if (content && hasConflictMarkers(*content))
        error.text = QCoreApplication::translate(
            "zel-package",
            "The file contains conflict markers of git; resolve these conflicts first.");
    if (content && error.text.isEmpty()) {
        if (auto manifest = manifestOf(*content, error))
            return manifest;
    }
    console.printMessage(side.name, error.position, error.text);
    return {};
}

QString inWords(const MergeConflict &conflict) {
    if (conflict.ours.isNull())
        return QCoreApplication::translate("zel-package", "Removed by ours, %1 in theirs.")
            .arg(Zel::PackageModel::excerpt(conflict.theirs));
    if (conflict.theirs.isNull())
        return QCoreApplication::translate("zel-package", "%1 in ours, removed by theirs.")
            .arg(Zel::PackageModel::excerpt(conflict.ours));
    const auto shown = Zel::PackageModel::excerpts(conflict.ours, conflict.theirs);
    return QCoreApplication::translate("zel-package", "%1 in ours, %2 in theirs.")
        .arg(shown.before, shown.after);
}

void report(const QString &file, const QVector<MergeConflict> &conflicts, Console &console) {
    for (const MergeConflict &conflict : conflicts)
        console.printMessage(file, Zel::fromUtf8(conflict.path.toString()) % QStringLiteral(": ") %
                                       inWords(conflict));
}

// Writes the result to OURS, unless the file was changed in the meantime.
bool saveOurs(const QString &file, const Manifest &ours, const std::string &content,
              Console &console) {
    if (content == ours.content)
        return true;
    const Tano::SaveResult result = Tano::saveFile(
        {nativeBytes(file), content, Tano::FileFingerprint::ofContent(ours.content)});
    if (!result)
        console.printMessage(translatedSentence(result.error));
    return bool(result);
}

ExitStatus merge(const Request &request, Console &console) {
    const auto base = readSide(request.base, console);
    const auto ours = readSide(request.ours, console);
    const auto theirs = readSide(request.theirs, console);
    if (!base || !ours || !theirs)
        return Failure;
    const auto merged = Zel::PackageModel::merge(base->package, ours->package, theirs->package);
    const std::string content = merged.record.saveToManifestContent();
    if (!merged.error.isEmpty() || content.empty()) {
        console.printMessage(request.ours.name,
                             merged.error.isEmpty()
                                 ? translatedSentence(merged.record.errorString())
                                 : merged.error);
        return Failure;
    }
    const bool isOurs = request.output == request.ours.file && !isStandardStream(request.output);
    const bool isSaved = isOurs ? saveOurs(request.output, *ours, content, console)
                                : writeOutput(request.output, content, console);
    if (!isSaved)
        return Failure;
    report(request.ours.name, merged.conflicts, console);
    return merged.conflicts.isEmpty() ? Fine : Findings;
}

ExitStatus run(const QCommandLineParser &arguments, Console &console) {
    return merge(requestOf(arguments), console);
}

} // namespace

const ProgramCommand mergeCommand{
    "merge",
    QT_TRANSLATE_NOOP("zel-package", "Merge the changes of two manifests by field"),
    QT_TRANSLATE_NOOP("zel-package", "BASE OURS THEIRS [-o OUT] [--path PATH]"),
    QT_TRANSLATE_NOOP(
        "zel-package",
        "Merges the changes from BASE to THEIRS into OURS, field by field. If both sides changed a "
        "field differently, the value in OURS is kept, and a comment before the field shows both "
        "values; 'validate' reports it until it is removed. The exit status is 0 after a merge "
        "without conflicts, 1 after a merge with conflicts, and 2 after an error, which leaves "
        "OURS unchanged. An empty file is a manifest without fields. One of the files may be '-' "
        "for standard input."),
    3,
    3,
    options,
    run,
};

} // namespace ZelPackage
