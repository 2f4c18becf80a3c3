#pragma once

#include <packagemodel/package_issues.h>

#include <tano/field_path.h>

#include <QHash>
#include <QString>

#include <string>
#include <vector>

namespace Zel::PackageModel {

/// The comments of a manifest that turn off rules:
///
/// ```
/// <!-- zel-package: ignore text-blank, nature-unknown -->
/// <behavior path="greet" nature="solo"/>
/// ```
///
/// Such a comment applies to the element that follows it and to the content of that element; before
/// the root element, to the whole manifest. One that no element follows applies to the element
/// around it. Since a block of texts is no field, one before its first text applies to the block.
class PACKAGEMODEL_EXPORT IgnoreComments {
public:
    /// A rule in a comment.
    struct Entry {
        QString rule;            ///< as written, so that it may not exist
        Tano::FieldPath element; ///< the field that follows the comment
        bool isBlock;            ///< applies to all texts in the language of that field
        bool isUsed = false;     ///< has ignored something
    };

    /// Reads the comments of a record, which takes time proportional to the manifest if there are
    /// any.
    explicit IgnoreComments(const Tano::PackageInfo &record);

    /// Whether a comment turns off the rule for the field, which counts as a use of it.
    bool ignores(const QString &rule, const QString &field);

    /// In the order of the comments.
    const std::vector<Entry> &entries() const { return m_entries; }

private:
    std::vector<Entry> m_entries;
    QHash<QString, std::vector<std::size_t>> m_byRule; // indexes
};

/// Accepts the issues that no comment of the package ignores; for IssueOptions::filterFor. The
/// package has to hold its behaviors, which visitIssues() of a record does not ensure, and its
/// record to be up to date, see PackageInfoModel::syncRecord().
///
/// ```
/// IssueOptions options;
/// options.filterFor = notIgnored;
/// ```
PACKAGEMODEL_EXPORT IssueFilter notIgnored(const PackageInfoModel &package);

/// The edits that write comments which turn off the rules of issues for their fields; apply() makes
/// them one step. A rule is added to the comment that is there already. The comment is before the
/// element of the field or, where that is absent, before the smallest one around it in which the
/// rule can be turned off: it may then ignore further issues of the same rule.
///
/// Empty if there is nothing left to ignore, or the package cannot be saved.
PACKAGEMODEL_EXPORT Edits ignoringEdits(const PackageInfoModel *package,
                                        const QVector<Issue> &issues);

} // namespace Zel::PackageModel
