#pragma once

#include <packagemodel/package_edits.h>

#include <tano/manifest_reader.h>
#include <tano/package_info.h>

#include <QSet>
#include <QString>
#include <QVector>

#include <functional>

namespace Zel {

class PackageInfoModel;

/// @file
/// Finds and fixes problems of packages. Messages, live flags, issues and the output of the
/// programs all come from one table of rules.
namespace PackageModel {

/// How serious an issue is, in ascending order.
enum class Severity { Note, Warning, Error };

/// A rule for packages, with texts in the language of the application.
struct Rule {
    QString id;           ///< stable, for filters and reports; never translated
    Severity severity;    ///< of its issues
    QString message;      ///< with placeholders, in rich text: "<" is written "&lt;"
    QString explanation;  ///< a paragraph of plain text
    QString remedy;       ///< how to correct the problem, in plain text
    QString example = {}; ///< a faulty part of a manifest; empty for none
};

/// All rules in the order of the checks.
PACKAGEMODEL_EXPORT QVector<Rule> rules();

/// A way to correct an issue.
struct Fix {
    QString title; ///< for a button or a menu: "Remove the permission"
    bool isSafe;   ///< keeps the meaning, and can be made without asking the user
    Edits edits;   ///< for apply() or a PackageEditCommand
};

/// A violation of a rule in one field.
struct Issue {
    QString id;        ///< of the rule
    Severity severity; ///< of the rule
    /// The faulty field, for example "names[fr_FR]", "robotRequirements[0].maxBodyVersion" or
    /// "behaviors[greet].triggerSentences[ja_JP]". Lists count from 0.
    QString path;
    /// The text of the message: "<" is written "&lt;", but values of the package are not escaped.
    /// Show plainText() or richText() to users instead.
    QString text;
    QVector<Fix> fixes = {}; ///< the most likely first
    /// The unknown element or attribute in the field, if the issue is about one.
    std::optional<Tano::UnknownNode> node = {};

    /// The text without markup, for terminals, reports and plain labels.
    PACKAGEMODEL_EXPORT QString plainText() const;
    /// The text for rich-text widgets, with values of the package escaped.
    PACKAGEMODEL_EXPORT QString richText() const;
};

/// Returns whether an issue, which does not have its text and fixes yet, is wanted.
using IssueFilter = std::function<bool(const Issue &issue)>;

/// Options of issues().
struct IssueOptions {
    /// The folder of the manifest, in which to look for topic files and the icon; empty to skip the
    /// checks of files.
    QString folder = {};
    /// The record as it was read, to check a version as written instead of as normalized by the
    /// model.
    const Tano::PackageInfo *written = nullptr;
    /// Returns the filter for the issues of a package; null for no filter. fixIssues() calls it
    /// again after each change of the package, since paths with indexes change.
    std::function<IssueFilter(const PackageInfoModel &package)> filterFor = {};
    /// If not empty, only issues with exactly these paths are wanted; the path of an entry does not
    /// include its fields. Other behaviors are not checked, so that the effect of an edit in a
    /// large package is known at once.
    QSet<QString> paths = {};
    /// Whether issues get their fixes, which take longer to make than the rest.
    bool withFixes = true;
};

/// All issues of a package, each with the path of its field. Those behind the messages of
/// validate() come first, in the same order, one for each field; those of further rules follow.
/// Empty for a null package.
///
/// ```cpp
/// for (const PackageModel::Issue &issue : PackageModel::issues(&package))
///     out << issue.path << ": " << issue.plainText() << '\n';
/// ```
PACKAGEMODEL_EXPORT QVector<Issue> issues(const PackageInfoModel *package,
                                          const IssueOptions &options = {});

/// How visitIssues() continues after an issue.
enum class IssueVisit {
    Continue, ///< with the next issue
    SkipRule, ///< with the next issue of another rule
    Stop      ///< not at all
};

/// Calls `visit` for each of issues() in the same order, without collecting them: a package can
/// have as many as behaviors times languages. `visit` must not change the package.
PACKAGEMODEL_EXPORT void visitIssues(const PackageInfoModel *package,
                                     const std::function<IssueVisit(const Issue &issue)> &visit,
                                     const IssueOptions &options = {});

/// Visits the issues of a record behavior by behavior: in another order and, without fixes, with
/// little memory. Filters then get a package without behaviors.
PACKAGEMODEL_EXPORT void visitIssues(const Tano::PackageInfo &record,
                                     const std::function<IssueVisit(const Issue &issue)> &visit,
                                     const IssueOptions &options = {});

/// The fixes for fixIssues() to make.
enum class FixChoice { Safe, All };

/// Makes the first suitable fix of each issue, and repeats until no issue can be fixed. Returns the
/// edits in the order in which they were made; a second call changes nothing.
PACKAGEMODEL_EXPORT Edits fixIssues(PackageInfoModel *package, FixChoice choice,
                                    const IssueOptions &options = {});

} // namespace PackageModel
} // namespace Zel
