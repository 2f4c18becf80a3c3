#include "row_actions.h"

#include "document/document.h"
#include "document/row_edits.h"

#include <QAbstractItemView>
#include <QAbstractProxyModel>
#include <QAction>
#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMimeData>

#include <algorithm>
#include <utility>

namespace Editor {

using Tano::FieldPath;
using Zel::PackageModel::Edits;
using Zel::PackageModel::FieldValue;

namespace {

QPoint positionOf(const QDropEvent &event) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event.position().toPoint();
#else
    return event.pos();
#endif
}

// The source row of an index, below a filter.
int sourceRow(const QModelIndex &index) {
    const auto *proxy = qobject_cast<const QAbstractProxyModel *>(index.model());
    return (proxy ? proxy->mapToSource(index) : index).row();
}

QModelIndex viewIndex(const QAbstractItemView &view, int row) {
    const auto *proxy = qobject_cast<const QAbstractProxyModel *>(view.model());
    return proxy ? proxy->mapFromSource(proxy->sourceModel()->index(row, 0))
                 : view.model()->index(row, 0);
}

// The displayed text of a row, for entries without a key.
QString shownText(const QModelIndex &first) {
    QStringList cells;
    for (int column = 0; column < first.model()->columnCount(); ++column)
        cells += first.sibling(first.row(), column).data().toString();
    return cells.join(u'\t');
}

} // namespace

void selectAlone(QAbstractItemView *view, const QModelIndex &index) {
    // Extended selections would react to Ctrl or Shift in the current shortcut.
    const auto mode = view->selectionMode();
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setCurrentIndex(index);
    view->setSelectionMode(mode);
}

void editAlone(QAbstractItemView *view, const QModelIndex &cell) {
    if (!cell.isValid())
        return;
    view->setFocus();
    selectAlone(view, cell);
    view->edit(cell);
}

RowActions::RowActions(QAbstractItemView *view, Document &document, RowList list)
    : QObject(view)
    , m_view(view)
    , m_document(document)
    , m_list(std::move(list)) {
    view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view->setContextMenuPolicy(Qt::ActionsContextMenu);
    const bool hasAll = !m_list.removal;
    if (hasAll)
        m_needRows +=
            add(tr("Cu&t"), QKeySequence::keyBindings(QKeySequence::Cut), &RowActions::cut);
    m_needRows +=
        add(tr("&Copy"), QKeySequence::keyBindings(QKeySequence::Copy), &RowActions::copy);
    if (m_list.hasEntries)
        add(tr("&Paste"), QKeySequence::keyBindings(QKeySequence::Paste), &RowActions::paste);
    if (hasAll)
        m_needRows +=
            add(tr("Dup&licate"), {QKeySequence(Qt::CTRL | Qt::Key_D)}, &RowActions::duplicate);
    m_needRows += add(tr("&Delete"), {QKeySequence(Qt::Key_Delete)}, &RowActions::remove);
    if (m_list.isOrdered) {
        addSeparator();
        m_moves += add(tr("&Move Up"), {QKeySequence(Qt::ALT | Qt::Key_Up)}, &RowActions::moveUp);
        m_moves +=
            add(tr("Move Do&wn"), {QKeySequence(Qt::ALT | Qt::Key_Down)}, &RowActions::moveDown);
        view->setDragDropMode(QAbstractItemView::InternalMove);
        view->viewport()->installEventFilter(this);
    }
    connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &RowActions::refresh);
    connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &RowActions::refresh);
    connect(view->model(), &QAbstractItemModel::rowsInserted, this, &RowActions::refresh);
    connect(view->model(), &QAbstractItemModel::rowsRemoved, this, &RowActions::refresh);
    connect(view->model(), &QAbstractItemModel::modelReset, this, &RowActions::refresh);
    refresh();
}

QAction *RowActions::add(const QString &text, const QList<QKeySequence> &shortcuts,
                         void (RowActions::*act)()) {
    auto *action = new QAction(text, m_view);
    action->setShortcuts(shortcuts);
    action->setShortcutContext(Qt::WidgetShortcut); // cell editors have their own
    connect(action, &QAction::triggered, this, act);
    m_view->addAction(action);
    return action;
}

void RowActions::addSeparator() {
    auto *separator = new QAction(m_view);
    separator->setSeparator(true);
    m_view->addAction(separator);
}

void RowActions::refresh() {
    const bool hasRows = !selectedRows().isEmpty();
    for (QAction *action : std::as_const(m_needRows))
        action->setEnabled(hasRows);
    for (QAction *action : std::as_const(m_moves))
        action->setEnabled(hasRows && canMove());
}

QVector<FieldValue> RowActions::entries() const {
    return Zel::PackageModel::entries(m_document.package(), m_list.path());
}

int RowActions::size() const {
    return int(entries().size());
}

QVector<int> RowActions::selectedRows() const {
    QModelIndexList indexes = m_view->selectionModel()->selectedIndexes();
    if (indexes.isEmpty() && m_view->currentIndex().isValid())
        indexes.append(m_view->currentIndex());
    QVector<int> rows;
    for (const QModelIndex &index : std::as_const(indexes))
        rows.append(sourceRow(index));
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

QVector<int> RowActions::rows() const {
    QVector<int> rows = selectedRows();
    rows.erase(std::lower_bound(rows.begin(), rows.end(), size()), rows.end());
    return rows;
}

bool RowActions::canMove() const {
    const auto *proxy = qobject_cast<const QAbstractProxyModel *>(m_view->model());
    return m_list.isOrdered && (!proxy || proxy->rowCount() == proxy->sourceModel()->rowCount());
}

void RowActions::select(int first, int count) {
    const auto isHidden = [&](int row) { return !viewIndex(*m_view, row).isValid(); };
    for (int row = first; row < first + count; ++row) {
        if (isHidden(row)) {
            Q_EMIT hiddenRowsWanted();
            break;
        }
    }
    const QModelIndex current = viewIndex(*m_view, first);
    const int column = std::max(0, m_view->currentIndex().column());
    selectAlone(m_view, current.sibling(current.row(), column));
    QItemSelection selection;
    for (int row = first; row < first + count; ++row) {
        const QModelIndex index = viewIndex(*m_view, row);
        selection.select(index, index);
    }
    m_view->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect |
                                                    QItemSelectionModel::Rows);
    m_view->scrollTo(current);
}

void RowActions::copy() {
    if (!m_list.hasEntries) {
        QStringList lines;
        for (const int row : selectedRows())
            lines.append(shownText(viewIndex(*m_view, row)));
        QGuiApplication::clipboard()->setText(lines.join(u'\n'));
        return;
    }
    const QVector<FieldValue> all = entries();
    QVector<FieldValue> copied;
    QStringList lines;
    for (const int row : rows()) {
        copied.append(all.at(row));
        const QString key = entryKey(all.at(row));
        lines.append(key.isEmpty() ? shownText(viewIndex(*m_view, row)) : key);
    }
    if (!copied.isEmpty())
        QGuiApplication::clipboard()->setMimeData(newRowData(m_list.path(), copied, lines));
}

void RowActions::cut() {
    copy();
    remove();
}

void RowActions::remove() {
    const QVector<int> selected = selectedRows();
    if (selected.isEmpty())
        return;
    const int viewRow = viewIndex(*m_view, selected.first()).row();
    const int column = m_view->currentIndex().column();
    if (m_list.removal)
        m_list.removal(selected);
    else
        m_document.edit(removals(m_document.package(), m_list.path(), selected));
    const int next = std::min(viewRow, m_view->model()->rowCount() - 1);
    selectAlone(m_view, m_view->model()->index(next, column));
}

void RowActions::paste() {
    const PastedRows pasted =
        pastedRows(m_document.package(), m_list.path(), QGuiApplication::clipboard()->mimeData());
    if (pasted.error.isEmpty())
        insert(pasted.entries);
    else
        Q_EMIT m_document.editRefused(pasted.error);
}

void RowActions::duplicate() {
    const QVector<FieldValue> all = entries();
    QVector<FieldValue> copies;
    for (const int row : rows())
        copies.append(all.at(row));
    insert(copies);
}

// Inserts below the selected rows.
void RowActions::insert(const QVector<FieldValue> &entries) {
    const int sizeBefore = size();
    const QVector<int> selected = rows();
    const int row = selected.isEmpty() ? sizeBefore : selected.last() + 1;
    m_document.edit(insertions(m_document.package(), m_list.path(), entries, row));
    if (size() > sizeBefore) // false if the edit was refused
        select(row, int(entries.size()));
}

void RowActions::moveUp() {
    if (const QVector<int> selected = rows(); !selected.isEmpty())
        move(std::max(0, selected.first() - 1));
}

void RowActions::moveDown() {
    if (const QVector<int> selected = rows(); !selected.isEmpty())
        move(std::min(size(), selected.last() + 2));
}

void RowActions::move(int before) {
    const QVector<int> moved = rows();
    const Edits edits = moves(m_document.package(), m_list.path(), moved, before);
    if (edits.isEmpty())
        return;
    m_document.edit(edits);
    const auto above = std::lower_bound(moved.begin(), moved.end(), before) - moved.begin();
    select(before - int(above), int(moved.size()));
}

bool RowActions::eventFilter(QObject *watched, QEvent *event) {
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop: {
        auto &drop = *static_cast<QDropEvent *>(event);
        return drop.source() == m_view && handleDrag(drop, event->type() == QEvent::Drop);
    }
    default:
        return QObject::eventFilter(watched, event);
    }
}

// The view shows the drop position; the drop itself is an edit that bypasses the model.
bool RowActions::handleDrag(QDropEvent &event, bool isDrop) {
    if (!canMove()) {
        event.ignore();
        return true;
    }
    if (!isDrop)
        return false;
    event.setDropAction(Qt::CopyAction); // keeps the view from removing the dragged rows
    event.accept();
    dropAt(positionOf(event));
    return true;
}

void RowActions::dropAt(const QPoint &position) {
    if (!canMove())
        return;
    const QModelIndex index = m_view->indexAt(position);
    const bool isBelow = position.y() > m_view->visualRect(index).center().y();
    move(index.isValid() ? std::min(size(), sourceRow(index) + int(isBelow)) : size());
}

} // namespace Editor
