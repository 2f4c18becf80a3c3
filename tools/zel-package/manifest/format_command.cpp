#include "program_command.h"

#include "arguments/format_option.h"
#include "arguments/native_text.h"
#include "console/json_list.h"
#include "console/library_text.h"
#include "manifest_source.h"

#include <algorithm>
#include <array>

namespace ZelPackage {
namespace {

const QLatin1String checkOption("check");

QList<QCommandLineOption> options() {
    return {{checkOption,
             QCoreApplication::translate(
                 "zel-package",
                 "Write nothing; print the names of files that are not in canonical form.")},
            formatOption()};
}

// A file before or after formatting.
struct Formatted {
    enum State { Canonical, Different, Malformed, Unreadable };
    State state = Canonical;
    ManifestError error = {}; // if malformed or unreadable
};

constexpr std::array stateWords{"canonical", "different", "malformed", "unreadable"};

ExitStatus statusOf(const Formatted &formatted) {
    constexpr std::array statuses{Fine, Findings, Failure, Failure};
    return statuses[formatted.state];
}

Formatted failed(const Manifest &manifest) {
    return {Formatted::Unreadable, {{}, translatedSentence(manifest.package.errorString())}};
}

Formatted check(const Manifest &manifest) {
    const std::string canonical = manifest.package.saveToManifestContent();
    if (canonical.empty())
        return failed(manifest);
    return {manifest.content == canonical ? Formatted::Canonical : Formatted::Different};
}

Formatted rewrite(const QString &file, const Manifest &manifest, Console &console) {
    const std::string canonical = manifest.package.saveToManifestContent();
    if (canonical.empty())
        return failed(manifest);
    if (isStandardStream(file)) {
        console.printBytes(canonical);
    } else if (manifest.content != canonical &&
               !saveIfUnchanged(file, manifest, manifest.package)) {
        console.printMessage(translatedSentence(manifest.package.errorString()));
        return {Formatted::Unreadable};
    }
    return {};
}

Formatted format(const QString &file, bool isCheck, Console &console) {
    ManifestError error;
    const auto manifest = readManifest(file, error);
    if (manifest)
        return isCheck ? check(*manifest) : rewrite(file, *manifest, console);
    return {error.position.line == 0 ? Formatted::Unreadable : Formatted::Malformed, error};
}

QJsonObject toJson(const QString &file, const Formatted &formatted) {
    QJsonObject object{{QStringLiteral("file"), withVisibleBytes(file)},
                       {QStringLiteral("state"), QLatin1String(stateWords[formatted.state])}};
    if (!formatted.error.text.isEmpty())
        object[QStringLiteral("text")] = formatted.error.text;
    if (formatted.state == Formatted::Malformed) {
        object[QStringLiteral("line")] = qint64(formatted.error.position.line);
        object[QStringLiteral("column")] = qint64(formatted.error.position.column);
    }
    return object;
}

ExitStatus formatAll(const QStringList &files, bool isCheck, JsonListForm *form, Console &console) {
    ExitStatus status = Fine;
    for (const QString &file : files) {
        const Formatted formatted = format(file, isCheck, console);
        status = std::max(status, statusOf(formatted));
        if (form)
            form->add(toJson(file, formatted));
        else if (formatted.state == Formatted::Different)
            console.print(console.shown(file) % u'\n');
        if (!formatted.error.text.isEmpty())
            console.printMessage(file, formatted.error.position, formatted.error.text);
    }
    return status;
}

ExitStatus run(const QCommandLineParser &arguments, Console &console) {
    const bool isCheck = arguments.isSet(checkOption);
    const auto outputFormat = formatOf(arguments, console);
    if (!outputFormat)
        return Failure;
    const QStringList files = arguments.positionalArguments();
    if (outputFormat == OutputFormat::Text)
        return formatAll(files, isCheck, nullptr, console);
    if (!isCheck) {
        console.printMessage(
            QCoreApplication::translate("zel-package", "--format json needs --check."));
        return Failure;
    }
    JsonListForm form(QLatin1String("files"), console);
    const ExitStatus status = formatAll(files, isCheck, &form, console);
    form.finish();
    return status;
}

} // namespace

const ProgramCommand formatCommand{
    "format",
    QT_TRANSLATE_NOOP("zel-package", "Rewrite manifests in canonical form"),
    QT_TRANSLATE_NOOP("zel-package", "FILE... [--check [--format text|json]]"),
    QT_TRANSLATE_NOOP("zel-package",
                      "Rewrites each FILE in canonical form, preserving comments, unknown elements "
                      "and unknown attributes. Files already in canonical form are left unchanged. "
                      "'-' reads standard input and writes to standard output."),
    1,
    ProgramCommand::anyNumber,
    options,
    run,
};

} // namespace ZelPackage
