#include "program_command.h"

#include "console/library_text.h"
#include "manifest_source.h"

#include <algorithm>

namespace ZelPackage {
namespace {

QList<QCommandLineOption> options() {
    return {{QStringLiteral("check"),
             QCoreApplication::translate("zel-package",
                                         "Write no manifest; print the names of the files that are "
                                         "not in the canonical form.")}};
}

ExitStatus tellFailure(const QString &file, const Manifest &manifest, Console &console) {
    console.tell(file, translatedSentence(manifest.package.errorString()));
    return Failure;
}

ExitStatus check(const QString &file, const Manifest &manifest, Console &console) {
    const std::string canonical = manifest.package.saveToManifestContent();
    if (canonical.empty())
        return tellFailure(file, manifest, console);
    if (manifest.content == canonical)
        return Fine;
    console.print(console.shown(file) % u'\n');
    return Findings;
}

ExitStatus rewrite(const QString &file, const Manifest &manifest, Console &console) {
    const std::string canonical = manifest.package.saveToManifestContent();
    if (canonical.empty())
        return tellFailure(file, manifest, console);
    if (isStandardStream(file)) {
        console.printBytes(canonical);
        return Fine;
    }
    if (manifest.content == canonical || saveIfUnchanged(file, manifest, manifest.package))
        return Fine;
    return tellFailure(file, manifest, console);
}

ExitStatus run(const QCommandLineParser &arguments, Console &console) {
    const auto handle = arguments.isSet(QStringLiteral("check")) ? check : rewrite;
    ExitStatus status = Fine;
    const auto files = arguments.positionalArguments();
    for (const QString &file : files) {
        const auto manifest = readManifest(file, console);
        status = std::max(status, manifest ? handle(file, *manifest, console) : Failure);
    }
    return status;
}

} // namespace

const ProgramCommand formatCommand{
    "format",
    QT_TRANSLATE_NOOP("zel-package", "Rewrite manifests in the canonical form"),
    QT_TRANSLATE_NOOP("zel-package", "FILE... [--check]"),
    QT_TRANSLATE_NOOP("zel-package",
                      "Rewrites each FILE in the canonical form, with nothing lost: comments, and "
                      "elements and attributes that are not known, stay. A file that is in that "
                      "form already is left alone. '-' takes standard input and writes to standard "
                      "output."),
    1,
    ProgramCommand::anyNumber,
    options,
    run,
};

} // namespace ZelPackage
