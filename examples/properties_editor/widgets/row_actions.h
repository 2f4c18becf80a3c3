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

/// Selects an item of a view and nothing else, whatever keys are held down.
void selectAlone(QAbstractItemView *view, const QModelIndex &index);
/// Selects a cell and opens its editor. Does nothing without one: its entry was refused.
void editAlone(QAbstractItemView *view, const QModelIndex &cell);

/// The list of a package whose entries are the rows of a view.
struct RowList {
    std::function<Tano::FieldPath()> path;
    bool isOrdered = true; ///< rows can be moved
    /// Removes rows whose entries are not all that goes with them, such as languages with their
    /// texts. Such rows are neither cut nor duplicated.
    std::function<void(const QVector<int> &rows)> removal = {};
    /// False for rows that are only removed, and copied as text.
    bool hasEntries = true;
};

/// Cut, copy, paste, duplicate, delete and move for the selected rows of a view, by shortcut,
/// context menu and drag; each is one undo step. The view owns it.
///
/// Rows of the view's model, or of the source model of its proxy, are entries of the list, in their
/// order; a model may have more rows behind them. The model has to be set before.
class RowActions : public QObject {
    Q_OBJECT

public:
    RowActions(QAbstractItemView *view, Document &document, RowList list);

    /// Removes the selected rows; the current one while none is selected.
    void remove();
    /// Moves the selected rows to a point of the viewport.
    void dropAt(const QPoint &position);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// A filter hides rows that are about to be selected.
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
    /// Those of selectedRows() that are entries of the list.
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
