#pragma once

#include <packagemodel/package_edits.h>

#include <QStringList>

class QMimeData;

namespace Editor {

// Edits of several rows of a list, and rows on the clipboard. Rows are valid, ascending and differ.

/// What names an entry in its list: the text itself, the path of a behavior, the topic of a dialog,
/// the name of a service. Empty for a requirement.
QString entryKey(const Zel::PackageModel::FieldValue &entry);

/// The edits that remove rows.
Zel::PackageModel::Edits removals(const Zel::PackageInfoModel *package, const Tano::FieldPath &list,
                                  const QVector<int> &rows);
/// The edits that bring rows together before another row, or at the end; none where they are there.
Zel::PackageModel::Edits moves(const Zel::PackageInfoModel *package, const Tano::FieldPath &list,
                               const QVector<int> &rows, int before);
/// The edits that insert entries before a row. A key that is taken gets a number.
Zel::PackageModel::Edits insertions(const Zel::PackageInfoModel *package,
                                    const Tano::FieldPath &list,
                                    const QVector<Zel::PackageModel::FieldValue> &entries,
                                    int before);

/// Entries of a list as edits for other windows, and as lines for other programs. The caller owns
/// the result.
QMimeData *newRowData(const Tano::FieldPath &list,
                      const QVector<Zel::PackageModel::FieldValue> &entries,
                      const QStringList &lines);

/// What can be pasted, or why nothing can.
struct PastedRows {
    QVector<Zel::PackageModel::FieldValue> entries;
    QString error; ///< one sentence for people; empty on success
};

/// Reads what newRowData() wrote or, for a list of texts, the lines of a text. Texts that the list
/// has already are left out, as long as others remain.
PastedRows pastedRows(const Zel::PackageInfoModel *package, const Tano::FieldPath &list,
                      const QMimeData *data);

/// The lines of a text without the empty ones.
QStringList linesOf(const QString &text);

} // namespace Editor
