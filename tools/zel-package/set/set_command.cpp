#include "program_command.h"

#include "arguments/native_text.h"
#include "arguments/word_check.h"
#include "assigned_edit.h"
#include "console/library_text.h"
#include "console/text_diff.h"
#include "manifest/manifest_source.h"
#include "patch_names.h"

#include <packagemodel/package_info_model.h>
#include <packagemodel/package_issues.h>
#include <packagemodel/package_json.h>
#include <packagemodel/record_editor.h>

#include <tano/save_file.h>

#include <QSet>

namespace ZelPackage {
namespace {

using Zel::PackageModel::Edit;
using Zel::PackageModel::Edits;

const QLatin1String dryRunOption("dry-run");
const QLatin1String editsOption("edits");

QList<QCommandLineOption> options() {
    return {{dryRunOption,
             QCoreApplication::translate("zel-package",
                                         "Write nothing; print the changes as a unified diff.")},
            {editsOption,
             QCoreApplication::translate("zel-package",
                                         "First apply the edits in this JSON file (see "
                                         "schema/edits.schema.json); '-' is standard input."),
             QStringLiteral("FILE")}};
}

// The parsed arguments.
struct Request {
    QStringList files;
    std::vector<Assignment> assignments;
    Edits edits; // from the JSON file
};

// Reads the arguments, files first; on errors, reports them and returns false.
bool readArguments(const QStringList &arguments, Request &request, Console &console) {
    bool isFine = true;
    for (const QString &argument : arguments) {
        const bool isFile = request.assignments.empty() && isFine && !looksLikeAssignment(argument);
        if (!isFile && !checkText(argument, console))
            return false;
        if (isFile) {
            request.files += argument;
            continue;
        }
        const auto assignment = parseAssignment(argument);
        if (assignment)
            request.assignments.push_back(*assignment);
        else
            console.printMessage(QCoreApplication::translate(
                                     "zel-package", "'%1' is not of the form FIELD=VALUE, as in "
                                                    "author=Ines or names[en_US]=Tea.")
                                     .arg(argument));
        isFine = isFine && assignment;
    }
    return isFine;
}

bool readEdits(const QString &file, Request &request, Console &console) {
    QString reason;
    const auto content = readContent(file, reason);
    if (content) {
        auto parsed = Zel::PackageModel::editsFromJson(QByteArray::fromStdString(*content));
        request.edits = parsed.edits;
        reason = parsed.error;
    }
    if (!reason.isEmpty())
        console.printMessage(file, reason);
    return reason.isEmpty();
}

bool checkRequest(const Request &request, bool hasEdits, Console &console) {
    QString reason;
    if (request.files.isEmpty())
        reason = QCoreApplication::translate("zel-package", "Missing argument FILE.");
    else if (request.assignments.empty() && !hasEdits)
        reason =
            QCoreApplication::translate("zel-package", "'%1' is not of the form FIELD=VALUE, as in "
                                                       "author=Ines or names[en_US]=Tea.")
                .arg(request.files.constLast());
    if (!reason.isEmpty())
        console.printMessage(reason);
    return reason.isEmpty();
}

// Applies edits to one manifest.
class FileEdit {
public:
    FileEdit(const QString &file, const Manifest &manifest, Console &console)
        : m_file(file)
        , m_console(console)
        , m_written(manifest.package)
        , m_editor(manifest.package) {}

    /// Applies the edits in turn; reports each invalid one.
    bool apply(const Request &request);
    /// Reports the findings in edited fields that are new.
    void reportNewFindings();
    Tano::PackageInfo record() const { return m_editor.record(); }

private:
    using Finding = QPair<QString, QString>; // path and text

    QVector<Finding> findingsOn(const Zel::PackageInfoModel &package) const;
    bool apply(const Edits &edits);
    bool apply(const Assignment &assignment);
    void reportLostTopics(const Edit &edit, const Edits &inverse);

    const QString &m_file;
    Console &m_console;
    const Tano::PackageInfo &m_written;
    Zel::RecordEditor m_editor;
    QSet<QString> m_edited; // the paths
};

// The findings in the edited fields of a package.
QVector<FileEdit::Finding> FileEdit::findingsOn(const Zel::PackageInfoModel &package) const {
    using namespace Zel::PackageModel;
    IssueOptions options;
    options.paths = m_edited;
    options.withFixes = false;
    QVector<Finding> found;
    for (const Issue &issue : issues(&package, options))
        found.append({issue.path, issue.plainText()});
    return found;
}

bool FileEdit::apply(const Request &request) {
    bool isFine = apply(request.edits);
    for (const Assignment &assignment : request.assignments)
        isFine = apply(assignment) && isFine;
    return isFine;
}

bool FileEdit::apply(const Assignment &assignment) {
    const AssignedEdit assigned = assignedEdit(assignment, *m_editor.package());
    for (const QString &message : {assigned.error, assigned.remark}) {
        if (!message.isEmpty())
            m_console.printMessage(m_file, assignment.field % QStringLiteral(": ") % message);
    }
    if (!assigned.error.isEmpty())
        return false;
    return !assigned.edit || apply(Edits{*assigned.edit});
}

bool FileEdit::apply(const Edits &edits) {
    for (const Edit &edit : edits) {
        const auto applied = m_editor.apply({edit});
        if (!applied.error.isEmpty()) {
            m_console.printMessage(m_file, applied.error);
            return false;
        }
        reportLostTopics(edit, applied.inverse);
        m_edited.insert(Zel::fromUtf8(edit.path.toString()));
    }
    return true;
}

// Removing a supported language also removes the dialogs' topics in it.
void FileEdit::reportLostTopics(const Edit &edit, const Edits &inverse) {
    if (edit.action != Edit::Action::Remove)
        return;
    QStringList topics;
    for (const Edit &restored : inverse) {
        if (restored.action == Edit::Action::Set && restored.path != edit.path)
            topics += Zel::fromUtf8(restored.path.toString());
    }
    if (!topics.isEmpty())
        m_console.printMessage(m_file,
                               Zel::fromUtf8(edit.path.toString()) % QStringLiteral(": ") %
                                   QCoreApplication::translate("zel-package", "Also removes %1.")
                                       .arg(topics.join(QStringLiteral(", "))));
}

void FileEdit::reportNewFindings() {
    const auto found = findingsOn(*m_editor.package());
    if (found.isEmpty())
        return;
    const auto known = findingsOn(Zel::PackageInfoModel(m_written));
    for (const Finding &finding : found) {
        if (!known.contains(finding))
            m_console.printMessage(m_file,
                                   finding.first.isEmpty()
                                       ? finding.second
                                       : finding.first % QStringLiteral(": ") % finding.second);
    }
}

// The bytes of an edited manifest; nullopt after reporting an error.
std::optional<std::string> editedContent(const QString &file, const Manifest &manifest,
                                         const Request &request, Console &console) {
    FileEdit edit(file, manifest, console);
    if (!edit.apply(request))
        return {};
    const Tano::PackageInfo record = edit.record();
    std::string content = record.saveToManifestContent();
    if (content.empty()) {
        console.printMessage(file, translatedSentence(record.errorString()));
        return {};
    }
    edit.reportNewFindings();
    return content;
}

ExitStatus editFiles(const Request &request, bool isDryRun, Console &console) {
    std::vector<Tano::FileToSave> saved;
    QString printed;
    std::string streamed;
    bool isFine = true;
    const QStringList names = isDryRun ? patchNames(request.files) : request.files;
    for (int i = 0; i < request.files.size(); ++i) {
        const QString &file = request.files.at(i);
        const auto manifest = readManifest(file, console);
        const auto content =
            manifest ? editedContent(file, *manifest, request, console) : std::nullopt;
        isFine = isFine && content;
        if (!content)
            continue;
        if (isDryRun)
            printed += unifiedDiff(names.at(i), manifest->content, *content, console);
        else if (isStandardStream(file))
            streamed = *content;
        else if (manifest->content != *content)
            saved.push_back(
                {nativeBytes(file), *content, Tano::FileFingerprint::ofContent(manifest->content)});
    }
    if (!isFine)
        return Failure;
    if (const Tano::SaveResult result = Tano::saveFiles(saved); !result) {
        console.printMessage(translatedSentence(result.error));
        return Failure;
    }
    console.print(printed);
    console.printBytes(streamed);
    return Fine;
}

ExitStatus run(const QCommandLineParser &arguments, Console &console) {
    Request request;
    const bool hasEdits = arguments.isSet(editsOption);
    if (!readArguments(arguments.positionalArguments(), request, console) ||
        !checkRequest(request, hasEdits, console))
        return Failure;
    if (hasEdits && !readEdits(arguments.value(editsOption), request, console))
        return Failure;
    return editFiles(request, arguments.isSet(dryRunOption), console);
}

} // namespace

const ProgramCommand setCommand{
    "set",
    QT_TRANSLATE_NOOP("zel-package", "Set fields of manifests"),
    QT_TRANSLATE_NOOP("zel-package", "FILE... FIELD=VALUE... [--edits FILE] [--dry-run]"),
    QT_TRANSLATE_NOOP(
        "zel-package",
        "Sets fields, named as in 'show --format json': author=Ines, names[fr_FR]=Goûter, "
        "robotRequirements[0].maxBodyVersion=3.1, behaviors[greet].tags[en_US][0]=hello. An empty "
        "VALUE clears a text or removes an entry or item: behaviors[greet]=. The key [+] adds to a "
        "list: supportedLanguages[+]=fr_FR, behaviors[+].path=greet; '@INDEX' adds at an index, "
        "counted from 0: supportedLanguages[+]@0=fr_FR. 'ENTRY@INDEX' moves an entry: "
        "behaviors[greet]@0. Adding an existing entry or removing a missing one changes nothing, "
        "so commands can be repeated. If one field is wrong, no file is changed. Files are "
        "rewritten in canonical form without losing content. '-' reads standard input and writes "
        "to standard output; give a file whose name contains '=' with its folder, as in "
        "./a=b.xml."),
    1,
    ProgramCommand::anyNumber,
    options,
    run,
};

} // namespace ZelPackage
