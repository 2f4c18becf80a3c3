#pragma once

#include <packagemodel/package_edits.h>

#include <tano/manifest_reader.h>
#include <tano/package_info.h>

#include <QString>
#include <QVector>

#include <functional>

namespace Zel {

class PackageInfoModel;

/// What can be wrong with a package. Messages, live flags, issues and what the programs print all
/// come from the same table of rules.
namespace PackageModel {

enum class Severity { Note, Warning, Error };

/// One thing that can be wrong, in the language of the application.
struct Rule {
    QString id;           ///< stable, for filters and reports; never translated
    Severity severity;    ///< of what it finds
    QString message;      ///< with its placeholders; rich text, so that "<" is "&lt;"
    QString explanation;  ///< a paragraph of plain text
    QString remedy;       ///< how to correct it, in plain text
    QString example = {}; ///< a part of a manifest that it finds fault with; empty for none
};

/// All rules, in the order in which they are checked.
PACKAGEMODEL_EXPORT QVector<Rule> rules();

/// A way to correct an issue.
struct Fix {
    QString title; ///< what it does, as a button or a menu has it: "Remove the permission"
    bool isSafe;   ///< it keeps the meaning, so that it may be made without a question
    Edits edits;   ///< for apply() or a PackageEditCommand
};

/// One thing that is wrong in one field.
struct Issue {
    QString id; ///< of its rule
    Severity severity;
    /// The field at fault, for example "names[fr_FR]", "robotRequirements[0].maxBodyVersion" or
    /// "behaviors[greet].triggerSentences[ja_JP]". Lists count from 0.
    QString path;
    /// What is wrong, worded as in the messages: "<" of the wording is "&lt;", while values of the
    /// package are not escaped. Show plainText() or richText() instead.
    QString text;
    QVector<Fix> fixes = {}; ///< the most likely first
    /// Of an unknown element or attribute, which one of those in the field at `path`.
    std::optional<Tano::UnknownNode> node = {};

    /// The text without markup, for a terminal, a report or a plain label.
    PACKAGEMODEL_EXPORT QString plainText() const;
    /// The text for a rich-text widget. Values of the package appear as they are; none is markup.
    PACKAGEMODEL_EXPORT QString richText() const;
};

/// Whether an issue, which has neither text nor fixes yet, is wanted.
using IssueFilter = std::function<bool(const Issue &issue)>;

/// What issues() need beyond the package.
struct IssueOptions {
    /// The folder of the manifest, in which topic files and the icon are looked for; empty to leave
    /// them alone.
    QString folder = {};
    /// The record as it was read, if a version that the model has normalized is to be judged as
    /// written.
    const Tano::PackageInfo *written = nullptr;
    /// Returns the filter for the issues of a package; null to have all of them. fixIssues() calls
    /// it again after each change of the package, since paths with indexes change too.
    std::function<IssueFilter(const PackageInfoModel &package)> filterFor = {};
    /// Whether issues have their fixes, which take longer to make than the rest.
    bool withFixes = true;
};

/// All that is wrong with a package, each with the path of its field. First come the findings of
/// the messages of validate(), in their order, one for each field, then those of further rules. An
/// empty list for a null package.
///
/// ```
/// for (const auto &issue : PackageModel::issues(&package))
///     list.add(issue.path, issue.plainText());
/// ```
PACKAGEMODEL_EXPORT QVector<Issue> issues(const PackageInfoModel *package,
                                          const IssueOptions &options = {});

/// How visitIssues() goes on after an issue.
enum class IssueVisit {
    Continue,
    SkipRule, ///< without further issues of the same rule
    Stop
};

/// Calls `visit` for each of issues(), in the same order, without collecting them: a package can
/// have as many as behaviors times languages. `visit` must not change the package.
PACKAGEMODEL_EXPORT void visitIssues(const PackageInfoModel *package,
                                     const std::function<IssueVisit(const Issue &issue)> &visit,
                                     const IssueOptions &options = {});

/// The same for a record, behavior by behavior: in another order and, without fixes, with little
/// memory besides the record's. A filter then gets a package without behaviors.
PACKAGEMODEL_EXPORT void visitIssues(const Tano::PackageInfo &record,
                                     const std::function<IssueVisit(const Issue &issue)> &visit,
                                     const IssueOptions &options = {});

/// Which fixes fixIssues() makes.
enum class FixChoice { Safe, All };

/// Makes the first fix of each issue that has one of the choice, then those of the issues that this
/// leaves, until none is left that can be fixed. Returns the edits in the order in which they were
/// made; making it again changes nothing.
PACKAGEMODEL_EXPORT Edits fixIssues(PackageInfoModel *package, FixChoice choice,
                                    const IssueOptions &options = {});

} // namespace PackageModel
} // namespace Zel
