#pragma once

#include <packagemodel/package_edits.h>

#include <QStringList>

class QMimeData;

namespace Editor {

// Edits of several rows of a list, and rows on the clipboard. Row numbers must be valid, ascending
// and unique.

/// The key of an entry in its list: a text itself, the path of a behavior, the topic name of a
/// dialog, the name of a service. Empty for requirements.
QString entryKey(const Zel::PackageModel::FieldValue &entry);

/// The edits that remove rows.
Zel::PackageModel::Edits removals(const Zel::PackageInfoModel *package, const Tano::FieldPath &list,
                                  const QVector<int> &rows);
/// The edits that move rows before another row or to the end; empty if they are already there.
Zel::PackageModel::Edits moves(const Zel::PackageInfoModel *package, const Tano::FieldPath &list,
                               const QVector<int> &rows, int before);
/// The edits that insert entries before a row. Duplicate keys get a number.
Zel::PackageModel::Edits insertions(const Zel::PackageInfoModel *package,
                                    const Tano::FieldPath &list,
                                    const QVector<Zel::PackageModel::FieldValue> &entries,
                                    int before);

/// Entries as edits for other windows and as lines of text for other programs. The caller takes
/// ownership.
QMimeData *newRowData(const Tano::FieldPath &list,
                      const QVector<Zel::PackageModel::FieldValue> &entries,
                      const QStringList &lines);

/// The entries to paste, or the reason why there are none.
struct PastedRows {
    QVector<Zel::PackageModel::FieldValue> entries;
    QString error; ///< one sentence for people; empty on success
};

/// Reads the output of newRowData() or, for a list of texts, lines of text. Omits texts that the
/// list already has unless none would remain.
PastedRows pastedRows(const Zel::PackageInfoModel *package, const Tano::FieldPath &list,
                      const QMimeData *data);

/// The non-empty lines of a text.
QStringList linesOf(const QString &text);

} // namespace Editor
