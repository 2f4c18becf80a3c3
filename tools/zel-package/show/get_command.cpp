#include "program_command.h"

#include "console/library_text.h"
#include "manifest/manifest_source.h"

#include <packagemodel/package_fields.h>
#include <packagemodel/package_info_model.h>

#include <algorithm>

namespace ZelPackage {
namespace {

using Tano::FieldPath;
using Zel::PackageModel::Field;

QList<QCommandLineOption> options() {
    return {};
}

bool startsWith(const FieldPath &path, const FieldPath &start) {
    FieldPath part = path;
    while (part.steps().size() > start.steps().size() ||
           (!part.isEmpty() &&
            part.steps().back().selectors.size() > start.steps().back().selectors.size()))
        part = part.parent();
    return part == start;
}

// The value of a single field, or a line "FIELD=VALUE" per field of an entry or a list.
QString linesOf(const FieldPath &path, const QVector<Field> &fields) {
    QString lines;
    for (const Field &field : fields) {
        QString value = Zel::PackageModel::printed(field.value) % u'\n';
        if (field.path == path)
            return value;
        if (startsWith(field.path, path))
            lines += Zel::fromUtf8(field.path.toString()) % u'=' % value;
    }
    return lines;
}

ExitStatus get(const QString &argument, const Zel::PackageInfoModel &package,
               const QVector<Field> &fields, const QString &file, Console &console) {
    FieldPath::Error error;
    // The empty path is that of the package, which is no field.
    const auto path = argument.isEmpty() ? FieldPath().field({})
                                         : FieldPath::parse(Zel::toUtf8(argument), &error);
    QString reason = translatedSentence(error.message);
    if (path) {
        const QString lines = linesOf(*path, fields);
        console.print(lines);
        // An empty list exists although it has no lines.
        if (!lines.isEmpty() || Zel::PackageModel::value(&package, *path))
            return Fine;
        reason.clear();
        const auto form = Zel::PackageModel::formOf(*path, &reason);
        const bool isGroup = Zel::PackageModel::formOf(FieldPath(*path).key("en_US")).has_value();
        if (isGroup || (form && form->isList))
            return Fine;
        if (form) {
            console.printMessage(file, argument % QStringLiteral(": ") %
                                           QCoreApplication::translate(
                                               "zel-package", "The package has no such entry."));
            return Findings;
        }
    }
    console.printMessage(file, argument % QStringLiteral(": ") % reason);
    return Failure;
}

ExitStatus run(const QCommandLineParser &arguments, Console &console) {
    QStringList paths = arguments.positionalArguments();
    const QString file = paths.takeFirst();
    const auto manifest = readManifest(file, console);
    if (!manifest)
        return Failure;
    const Zel::PackageInfoModel package(manifest->package);
    const QVector<Field> fields = Zel::PackageModel::fields(&package);
    ExitStatus status = Fine;
    for (const QString &path : paths)
        status = std::max(status, get(path, package, fields, file, console));
    return status;
}

} // namespace

const ProgramCommand getCommand{
    "get",
    QT_TRANSLATE_NOOP("zel-package", "Print fields of a manifest"),
    QT_TRANSLATE_NOOP("zel-package", "FILE FIELD..."),
    QT_TRANSLATE_NOOP(
        "zel-package",
        "Prints the values of fields, named as in 'show --format json': author, names[fr_FR], "
        "behaviors[greet].tags[en_US][0]. For a list or an entry, such as names or "
        "behaviors[greet], prints FIELD=VALUE for each field in it. The exit status is 1 if the "
        "package has no such entry. '-' reads standard input."),
    2,
    ProgramCommand::anyNumber,
    options,
    run,
    1,
};

} // namespace ZelPackage
