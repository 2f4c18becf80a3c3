#include "program_command.h"

#include "console/text_diff.h"
#include "field_edit.h"
#include "manifest/manifest_source.h"

#include <packagemodel/package_info_model.h>

#include <QRegularExpression>

#include <algorithm>

namespace ZelPackage {
namespace {

constexpr const char *dryRunOption = "dry-run";

QList<QCommandLineOption> options() {
    return {
        {QLatin1String(dryRunOption),
         QCoreApplication::translate("zel-package", "Write nothing; print what would change, as a "
                                                    "unified diff.")}};
}

// Makes all assignments, each upon the result of those before it; reports every wrong one.
bool assignAll(const QStringList &arguments, Zel::PackageInfoModel &package, Console &console) {
    bool isFine = true;
    for (const QString &argument : arguments) {
        const auto assignment = parseAssignment(argument);
        if (!assignment)
            console.tell(QCoreApplication::translate("zel-package",
                                                     "'%1' is not of the form FIELD=VALUE, as in "
                                                     "author=Ines or names[en_US]=Tea.")
                             .arg(argument));
        isFine = assignment && assign(*assignment, package, console) && isFine;
    }
    return isFine;
}

// A model completes what it is given: the version has three fields, and every supported language is
// a description language too. Takes that back where no assignment has touched it.
void takeBackCompletion(const Tano::PackageInfo &written, const Tano::PackageInfo &completed,
                        const QStringList &arguments, Tano::PackageInfo &result) {
    if (arguments.filter(QRegularExpression(QStringLiteral("^version="))).isEmpty())
        result.setVersion(written.version());
    if (result.descriptionLanguages() != completed.descriptionLanguages())
        return;
    const std::vector<std::string> &languages = written.descriptionLanguages();
    for (const std::string &code : completed.descriptionLanguages()) {
        if (std::find(languages.begin(), languages.end(), code) == languages.end())
            result.removeDescriptionLanguage(code);
    }
}

// The record with the assignments made; nothing where one of them is wrong.
std::optional<Tano::PackageInfo> edited(const Tano::PackageInfo &record,
                                        const QStringList &arguments, Console &console) {
    Zel::PackageInfoModel package(record);
    const Tano::PackageInfo completed = package.packageInfo();
    if (!assignAll(arguments, package, console))
        return {};
    package.syncRecord();
    Tano::PackageInfo result = package.packageInfo();
    takeBackCompletion(record, completed, arguments, result);
    return result;
}

ExitStatus setFields(const QCommandLineParser &arguments, Console &console) {
    QStringList assignments = arguments.positionalArguments();
    const QString file = assignments.takeFirst();
    const auto manifest = readManifest(file, console);
    if (!manifest)
        return Failure;
    const auto record = edited(manifest->package, assignments, console);
    if (!record)
        return Failure;
    const std::string content = record->saveToManifestContent();
    bool isDone = !content.empty();
    if (isDone && arguments.isSet(QLatin1String(dryRunOption)))
        console.print(unifiedDiff(file, manifest->content, content, console));
    else if (isDone && isStandardStream(file))
        console.printBytes(content);
    else if (isDone && manifest->content != content)
        isDone = saveIfUnchanged(file, *manifest, *record);
    if (!isDone)
        console.tell(file, QString::fromStdString(record->errorString()));
    return isDone ? Fine : Failure;
}

} // namespace

const ProgramCommand setCommand{
    "set",
    QT_TRANSLATE_NOOP("zel-package", "Set fields of a manifest"),
    QT_TRANSLATE_NOOP("zel-package", "FILE FIELD=VALUE... [--dry-run]"),
    QT_TRANSLATE_NOOP(
        "zel-package",
        "Sets fields, named as in 'show --format json': author=Ines, names[fr_FR]=Goûter, "
        "robotRequirements[0].maxBodyVersion=3.1, behaviors[greet].tags[en_US][0]=hello. The key "
        "[+] appends to a list. An empty VALUE clears a text and removes an item. Either all "
        "fields are set or, where one is wrong, none. The file is rewritten in the canonical form "
        "with nothing lost. '-' takes standard input and writes to standard output."),
    2,
    ProgramCommand::anyNumber,
    options,
    setFields,
};

} // namespace ZelPackage
