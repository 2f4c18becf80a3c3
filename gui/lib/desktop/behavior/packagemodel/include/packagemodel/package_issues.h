#pragma once

#include <packagemodel/packagemodel_export.h>

#include <QString>
#include <QVector>

#include <functional>

namespace Zel {

class PackageInfoModel;

/// What can be wrong with a package. Messages, live flags, issues and what the programs print all
/// come from the same table of rules.
namespace PackageModel {

enum class Severity { Warning, Error };

/// One thing that can be wrong, in the language of the application.
struct Rule {
    QString id;          ///< stable, for filters and reports; never translated
    Severity severity;   ///< of what it finds
    QString message;     ///< with its placeholders; rich text, so that "<" is "&lt;"
    QString explanation; ///< a paragraph of plain text
    QString remedy;      ///< how to mend it, in plain text
};

/// All rules, in the order in which they are checked.
PACKAGEMODEL_EXPORT QVector<Rule> rules();

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

    /// The text without markup, for a terminal, a report or a plain label.
    PACKAGEMODEL_EXPORT QString plainText() const;
    /// The text for a rich-text widget. Values of the package appear as they are; none is markup.
    PACKAGEMODEL_EXPORT QString richText() const;
};

/// All that is wrong with a package: the same findings as the messages of validate(), in the same
/// order, one for each field. An empty list for a null package.
PACKAGEMODEL_EXPORT QVector<Issue> issues(const PackageInfoModel *package);

/// How visitIssues() goes on after an issue.
enum class IssueVisit {
    Continue,
    SkipRule, ///< without further issues of the same rule
    Stop
};

/// Calls `visit` for each of issues(), in the same order, without collecting them: a package can
/// have as many as behaviors times languages. `visit` must not change the package.
PACKAGEMODEL_EXPORT void visitIssues(const PackageInfoModel *package,
                                     const std::function<IssueVisit(const Issue &issue)> &visit);

} // namespace PackageModel
} // namespace Zel
