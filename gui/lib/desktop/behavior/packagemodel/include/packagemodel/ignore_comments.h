#pragma once

#include <packagemodel/package_issues.h>

#include <tano/field_path.h>

#include <QHash>
#include <QString>

#include <cstddef>
#include <unordered_map>
#include <vector>

namespace Zel::PackageModel {

/// The comments of a manifest that turn off rules:
///
/// ```xml
/// <!-- zel-package: ignore text-blank, nature-unknown -->
/// <behavior path="greet" nature="solo"/>
/// ```
///
/// A comment applies to the element that follows it, including its content; before the root
/// element, to the whole manifest. If no element follows, it applies to its parent. Before the
/// first text of a block, it applies to the block, which is not a field.
///
/// ```cpp
/// PackageModel::IgnoreComments comments(record);
/// comments.ignores(QStringLiteral("text-blank"), QStringLiteral("names[en_US]")); // -> false
/// ```
class PACKAGEMODEL_EXPORT IgnoreComments {
public:
    /// A rule in a comment.
    struct Entry {
        QString rule;            ///< as written; it may not exist
        Tano::FieldPath element; ///< the field that follows the comment
        bool isBlock;            ///< applies to all texts in the language of that field
        bool isUsed = false;     ///< has ignored something
    };

    /// Reads the comments of a record. If there are any, the time is proportional to the manifest.
    explicit IgnoreComments(const Tano::PackageInfo &record);

    /// Whether a comment turns off the rule for the field; marks its entry as used.
    bool ignores(const QString &rule, const QString &field);

    /// The rules in the order of the comments.
    const std::vector<Entry> &entries() const { return m_entries; }

private:
    std::vector<Entry> m_entries;
    QHash<QString, std::unordered_map<Tano::FieldPath, std::size_t>> m_byRule; // indexes of entries
};

/// A filter for issues that no comment of the package ignores, for IssueOptions::filterFor. Do not
/// use it for visitIssues() of a record, whose filters get a package without behaviors.
///
/// ```cpp
/// PackageModel::IssueOptions options;
/// options.filterFor = notIgnored;
/// ```
PACKAGEMODEL_EXPORT IssueFilter notIgnored(const PackageInfoModel &package);

/// The edits that turn off the rules of issues for their fields, by adding comments or extending
/// existing ones. A comment precedes the element of the field. If that is absent, it precedes the
/// nearest parent for which the rule can be turned off, and may ignore further issues of the rule.
///
/// Empty if all issues are ignored already or the package cannot be saved.
PACKAGEMODEL_EXPORT Edits ignoringEdits(const PackageInfoModel *package,
                                        const QVector<Issue> &issues);

} // namespace Zel::PackageModel
