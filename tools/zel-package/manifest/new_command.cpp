#include "program_command.h"

#include "arguments/language_argument.h"
#include "console/library_text.h"
#include "manifest_source.h"
#include "output_file.h"

#include <packagemodel/package_info_model.h>
#include <packagemodel/package_info_utils.h>

namespace ZelPackage {
namespace {

const QLatin1String uidOption("uid");
const QLatin1String nameOption("name");
const QLatin1String languageOption("language");

QList<QCommandLineOption> options() {
    return {
        {uidOption,
         QCoreApplication::translate(
             "zel-package",
             "The package's identifier: up to 50 of a-z, 0-9, '_' and '-', but not only digits."),
         QStringLiteral("UID")},
        {nameOption,
         QCoreApplication::translate("zel-package", "The package's name, in the first language."),
         QStringLiteral("TEXT")},
        {languageOption,
         QCoreApplication::translate("zel-package", "A language that the package supports, such as "
                                                    "fr_FR; may be repeated. The default is %1.")
             .arg(Zel::Language::defaultLanguage().isoCode()),
         QStringLiteral("CODE")}};
}

std::optional<Zel::RobotLanguages> languagesOf(const QStringList &codes, Console &console) {
    Zel::RobotLanguages languages;
    bool areCodes = true;
    for (const QString &code : codes) {
        if (const auto language = languageArgument(code, console))
            languages.push_back(*language);
        else
            areCodes = false;
    }
    if (!areCodes)
        return {};
    if (languages.empty())
        languages.push_back(Zel::Language::defaultLanguage());
    return languages;
}

bool writeManifest(const QString &file, const Zel::PackageInfoModel &package, Console &console) {
    const QByteArray content = package.saveToManifestContent();
    if (content.isEmpty()) {
        console.printMessage(file, translatedSentence(package.packageInfo().errorString()));
        return false;
    }
    if (isStandardStream(file)) {
        console.printBytes(content.toStdString());
        return true;
    }
    const QString reason = createFile(file, content.toStdString());
    if (!reason.isEmpty())
        console.printMessage(file, reason);
    return reason.isEmpty();
}

bool checkUid(const Zel::PackageInfoModel &package, Console &console) {
    QStringList errors;
    if (Zel::PackageModel::validatePackageUID(&package, errors))
        return true;
    console.printMessage(
        QCoreApplication::translate(
            "zel-package",
            "'%1' is not a valid UID; 'zel-package explain uid-invalid' describes one.")
            .arg(package.uid()));
    return false;
}

// Uses standard error, since the manifest may go to standard output.
void reportCreated(const Zel::PackageInfoModel &package, const QString &file, Console &console) {
    QStringList fields;
    const auto issues = Zel::PackageModel::issues(&package);
    for (const Zel::PackageModel::Issue &issue : issues) {
        if (issue.id.contains(QLatin1String("-missing")))
            fields += issue.path;
    }
    console.printMessage(
        QCoreApplication::translate("zel-package", "Created %1, version %2. Still needed: %3.")
            .arg(file, Zel::SoftwareVersionUtils::toString(package.version()),
                 fields.join(QStringLiteral(", "))));
}

ExitStatus run(const QCommandLineParser &arguments, Console &console) {
    const QString file = arguments.positionalArguments().constFirst();
    const QString uid = arguments.value(uidOption);
    if (uid.isEmpty()) {
        console.printMessage(
            QCoreApplication::translate("zel-package", "Missing option --uid UID."));
        return Failure;
    }
    const auto languages = languagesOf(arguments.values(languageOption), console);
    if (!languages)
        return Failure;

    Zel::PackageInfoModel package;
    package.setUid(uid);
    if (!checkUid(package, console))
        return Failure;
    package.setVersion({1, 0, 0});
    for (const Zel::RobotLanguage &language : *languages)
        package.addSupportedLanguage(language);
    package.setName(arguments.value(nameOption), languages->front());
    if (!writeManifest(file, package, console))
        return Failure;
    reportCreated(package, file, console);
    return Fine;
}

} // namespace

const ProgramCommand newCommand{
    "new",
    QT_TRANSLATE_NOOP("zel-package", "Create a manifest"),
    QT_TRANSLATE_NOOP("zel-package", "FILE --uid UID [--name TEXT] [--language CODE]..."),
    QT_TRANSLATE_NOOP("zel-package",
                      "Creates FILE, the manifest of a new package with version 1.0.0. Never "
                      "overwrites an existing file. '-' writes to standard output."),
    1,
    1,
    options,
    run,
    1,
};

} // namespace ZelPackage
