#pragma once

#include <packagemodel/package_edits.h>

#include <QRegularExpression>

namespace Zel::PackageModel {

/// Options of a search.
struct SearchOptions {
    bool matchesCase = false;         ///< case-sensitive
    bool matchesWords = false;        ///< whole words only
    bool isRegularExpression = false; ///< Perl-compatible, as in QRegularExpression
};

/// The pattern that finds a text, or the text as a regular expression if the options say so. An
/// invalid expression gives an invalid pattern, whose errorString() explains it.
PACKAGEMODEL_EXPORT QRegularExpression searchPattern(const QString &text,
                                                     const SearchOptions &options = {});

/// A match in the text of a field.
struct TextMatch {
    Tano::FieldPath path; ///< the field
    QString text;         ///< of the whole field
    int start;            ///< in UTF-16 code units
    int length;           ///< in UTF-16 code units
};
/// Matches in the order of their fields.
using TextMatches = QVector<TextMatch>;

/// All non-empty matches in the texts and versions among `fields`.
///
/// ```cpp
/// const auto found = matches(fields(&package), searchPattern(QStringLiteral("tea")));
/// ```
PACKAGEMODEL_EXPORT TextMatches matches(const QVector<Field> &fields,
                                        const QRegularExpression &pattern);

/// The outcome of replaced().
struct Replacement {
    Edits edits;       ///< for a PackageEditCommand
    int count = 0;     ///< the number of replaced matches
    TextMatches fixed; ///< matches in fields that cannot have the new text, such as languages
};

/// The edits that replace all or some matches of a pattern with a text. For a regular expression,
/// `\1` to `\99` in `by` are captured texts. Edits of paths, topic names and service names come
/// last, since the paths of the others contain the old name.
///
/// ```cpp
/// const auto pattern = searchPattern(QStringLiteral("tea"));
/// const auto found = matches(fields(&package), pattern);
/// const Replacement all = replaced(&package, found, pattern, QStringLiteral("coffee"));
/// stack.push(new PackageEditCommand(&package, all.edits));
/// ```
PACKAGEMODEL_EXPORT Replacement replaced(const PackageInfoModel *package,
                                         const TextMatches &matches,
                                         const QRegularExpression &pattern, const QString &by,
                                         const SearchOptions &options = {});

} // namespace Zel::PackageModel
