#pragma once

#include "text_cells.h"
#include "text_filter.h"

#include <QAbstractTableModel>
#include <QTimer>

#include <functional>

namespace Editor {

/// All texts of the package and its behaviors in two languages, one per row, with a heading for
/// each owner.
///
/// Rows are added in short steps while the user works. The filter applies to a row when it is
/// added, and again when another row becomes current after an edit, so that a row stays while its
/// text is typed.
class TranslationModel : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit TranslationModel(Document &document, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// Shows the texts of a language pair; none without a target.
    void setLanguages(const LanguagePair &languages);
    /// Shows the texts that match a filter.
    void setFilter(const TextFilter &filter);
    /// While active, follows the document; catches up on activation.
    void setActive(bool isActive);
    bool isLoading() const { return m_timer.isActive(); }

    /// The text of a row; empty for headings.
    Zel::PackageModel::TranslatableText text(const QModelIndex &index) const;
    /// The field that a row edits; the empty path for headings.
    Tano::FieldPath field(const QModelIndex &index) const { return text(index).path; }
    /// The target cell of a field; invalid if no row shows it.
    QModelIndex indexOf(const Tano::FieldPath &path) const;
    /// The target cell of the nearest missing text among the rows, after or before one, going on at
    /// the other end; invalid for none.
    QModelIndex nextMissing(const QModelIndex &from, int distance) const;
    /// Of the texts in either language, the number that exist in the target language, counting only
    /// rows added so far.
    Zel::PackageModel::Count total() const { return m_groups.total(m_next); }

    /// Sets the current row: rows edited before are filtered again.
    void setCurrent(const Tano::FieldPath &path);
    /// The target cell of a field, which becomes current even if it does not match the filter;
    /// invalid if there is no such text in the language. Adds all rows before it.
    QModelIndex reveal(const Tano::FieldPath &path);

Q_SIGNALS:
    /// Rows were added, or their texts have changed.
    void updated();

private:
    struct Row {
        int group;
        int text; // -1 for a heading
    };
    struct Range {
        int begin;
        int end;
    };

    void restart(bool isAnew);
    void goOn();
    void advance();
    void advanceWhile(const std::function<bool()> &goesOn);
    void followDocument();
    std::vector<int> passing(int group) const;
    Range rowsOf(int group) const;
    void refreshRows(int group, const QVector<Zel::PackageModel::TranslatableText> &before,
                     bool keepsRows);
    void removeRow(int row);
    void insertRow(int row, Row content);
    QModelIndex cellAt(int row) const { return index(row, int(TextColumn::Target)); }
    Row rowAt(const QModelIndex &index) const;
    const TextGroup &groupOf(const Row &row) const { return m_groups.at(row.group); }

    Document &m_document;
    TextGroups m_groups;
    std::vector<Row> m_rows;
    LanguagePair m_languages;
    TextFilter m_filter;
    Tano::FieldPath m_current;
    std::vector<int> m_touched; // groups edited while the current row was current
    int m_next = 0;             // the next group to add
    bool m_isActive = false;
    QTimer m_timer;
};

} // namespace Editor
