#pragma once

#include <packagemodel/package_edits.h>

#include <QRegularExpression>

namespace Zel::PackageModel {

struct SearchOptions {
    bool matchesCase = false;
    bool matchesWords = false;        ///< whole words only
    bool isRegularExpression = false; ///< Perl-compatible, as in QRegularExpression
};

/// What to search for: the text itself, unless it is a regular expression. An expression that is
/// not valid gives a pattern that is not valid either, whose errorString() says why.
PACKAGEMODEL_EXPORT QRegularExpression searchPattern(const QString &text,
                                                     const SearchOptions &options = {});

/// A place where a field's text matches.
struct TextMatch {
    Tano::FieldPath path;
    QString text; ///< of the whole field
    int start;    ///< in UTF-16 code units
    int length;
};
using TextMatches = QVector<TextMatch>;

/// Where the texts and versions among some fields match, in their order. Matches that are empty do
/// not count.
///
/// ```
/// const auto found = matches(fields(&package), searchPattern(QStringLiteral("tea")));
/// ```
PACKAGEMODEL_EXPORT TextMatches matches(const QVector<Field> &fields,
                                        const QRegularExpression &pattern);

/// The edits that replace matches of a pattern, for a PackageEditCommand; the matches may be some
/// of those that matches() found.
struct Replacement {
    Edits edits;
    int count = 0;     ///< of matches that the edits replace
    TextMatches fixed; ///< matches in fields that cannot have the new text, such as languages
};

/// Replaces matches by a text. For a regular expression, `\1` to `\99` in it are captured texts.
/// The edits of a behavior's path, a dialog's topic or a service's name follow the others, whose
/// paths have the old name.
PACKAGEMODEL_EXPORT Replacement replaced(const PackageInfoModel *package,
                                         const TextMatches &matches,
                                         const QRegularExpression &pattern, const QString &by,
                                         const SearchOptions &options = {});

} // namespace Zel::PackageModel
