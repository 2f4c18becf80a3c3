#pragma once

#include <packagemodel/package_edits.h>

#include <QObject>
#include <QVector>

#include <functional>

class QAbstractItemView;
class QAction;
class QDropEvent;
class QKeySequence;
class QModelIndex;

namespace Editor {

class Document;

/// Selects only this item of a view, regardless of modifier keys.
void selectAlone(QAbstractItemView *view, const QModelIndex &index);
/// Selects a cell and opens its editor. Does nothing without one: its entry was refused.
void editAlone(QAbstractItemView *view, const QModelIndex &cell);

/// The list of the package whose entries are the rows of a view.
struct RowList {
    std::function<Tano::FieldPath()> path;
    bool isOrdered = true; ///< whether rows can be moved
    /// Removes rows whose entries have dependent content, such as languages with their texts. Such
    /// rows cannot be cut or duplicated.
    std::function<void(const QVector<int> &rows)> removal = {};
    /// False for rows that are only removed, and copied as text.
    bool hasEntries = true;
};

/// Cut, copy, paste, duplicate, delete and move for the selected rows of a view, by shortcut,
/// context menu and drag; each is one undo step. Owned by the view.
///
/// The rows of the view's model, or of its proxy's source model, correspond to the entries of the
/// list; additional rows may follow. The model must be set before.
class RowActions : public QObject {
    Q_OBJECT

public:
    RowActions(QAbstractItemView *view, Document &document, RowList list);

    /// Removes the selected rows, or the current one if none is selected.
    void remove();
    /// Moves the selected rows to a position in the viewport.
    void dropAt(const QPoint &position);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// Rows to be selected are hidden by a filter.
    void hiddenRowsWanted();

private:
    QAction *add(const QString &text, const QList<QKeySequence> &shortcuts,
                 void (RowActions::*act)());
    void addSeparator();
    void refresh();

    void copy();
    void cut();
    void paste();
    void duplicate();
    void moveUp();
    void moveDown();
    void move(int before);
    void insert(const QVector<Zel::PackageModel::FieldValue> &entries);
    bool handleDrag(QDropEvent &event, bool isDrop);

    int size() const;
    QVector<Zel::PackageModel::FieldValue> entries() const;
    QVector<int> selectedRows() const;
    /// The selected rows that are entries of the list.
    QVector<int> rows() const;
    bool canMove() const;
    void select(int first, int count);

    QAbstractItemView *m_view;
    Document &m_document;
    RowList m_list;
    QVector<QAction *> m_needRows;
    QVector<QAction *> m_moves;
};

} // namespace Editor
