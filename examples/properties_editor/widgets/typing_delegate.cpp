#include "typing_delegate.h"

#include "document/document.h"
#include "field_note.h"
#include "models/table_model.h"
#include "text_field.h"

#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyle>
#include <QTableView>

namespace Editor {
namespace {

TextField *fieldOf(QObject *editor) {
    return editor->findChild<TextField *>(QString(), Qt::FindDirectChildrenOnly);
}

} // namespace

TypingDelegate::TypingDelegate(Document &document, QAbstractItemView *view)
    : QStyledItemDelegate(view)
    , m_document(document) {
}

QWidget *TypingDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                      const QModelIndex &index) const {
    const auto *model = qobject_cast<const TableModel *>(index.model());
    const auto choices = model->choices(index);
    if (!choices.isEmpty()) {
        auto *self = const_cast<TypingDelegate *>(this); // Qt's signature
        auto *combo = new QComboBox(parent);
        for (const auto &[value, text] : choices)
            combo->addItem(text, value);
        connect(combo, qOverload<int>(&QComboBox::activated), self, [self, combo] {
            Q_EMIT self->commitData(combo);
            Q_EMIT self->closeEditor(combo);
        });
        return combo;
    }
    if (model->field(index).isEmpty())
        return QStyledItemDelegate::createEditor(parent, option, index);
    auto *edit = new QLineEdit(parent);
    edit->setFrame(false);
    edit->setAccessibleName(model->headerData(index.column(), Qt::Horizontal).toString());
    const QPersistentModelIndex cell(index);
    const auto *field =
        new TextField(edit, m_document,
                      {[model, cell] { return model->field(cell); },
                       [model, cell](const QString &text) { return model->refusal(cell, text); }});
    field->note()->hover();
    return edit;
}

void TypingDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const {
    // A text field updates its text itself.
    if (auto *combo = qobject_cast<QComboBox *>(editor))
        combo->setCurrentIndex(combo->findData(index.data(Qt::EditRole)));
    else if (!fieldOf(editor))
        QStyledItemDelegate::setEditorData(editor, index);
}

void TypingDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                  const QModelIndex &index) const {
    const auto *combo = qobject_cast<QComboBox *>(editor);
    if (combo && combo->currentIndex() >= 0)
        model->setData(index, combo->currentData());
    else if (!combo && !fieldOf(editor))
        QStyledItemDelegate::setModelData(editor, model, index);
}

// Gives the editor the space of the mark, which may disappear during typing.
void TypingDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                          const QModelIndex &) const {
    editor->setGeometry(option.rect);
}

QSize TypingDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const {
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    size.setHeight(std::max(size.height(), option.fontMetrics.height() + 10));
    return size;
}

bool TypingDelegate::eventFilter(QObject *watched, QEvent *event) {
    TextField *field = fieldOf(watched);
    if (field && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Escape)
            field->revert();
        else if ((key == Qt::Key_Return || key == Qt::Key_Enter) && !field->refusal().isEmpty())
            return true;
    }
    if (field && event->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent *>(event)->reason() == Qt::ActiveWindowFocusReason)
        return false; // bypasses the base class, which would close the editor
    return QStyledItemDelegate::eventFilter(watched, event);
}

void setUpTable(QAbstractItemView *view, Document &document, const QString &accessibleName) {
    view->setItemDelegate(new TypingDelegate(document, view));
    view->setAccessibleName(accessibleName);
    view->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                          QAbstractItemView::AnyKeyPressed | QAbstractItemView::SelectedClicked);
    view->setTabKeyNavigation(false);
    view->setAlternatingRowColors(true);
    const int extent = view->style()->pixelMetric(QStyle::PM_SmallIconSize);
    view->setIconSize(QSize(extent, extent)); // larger by default in lists
    view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    if (auto *table = qobject_cast<QTableView *>(view)) {
        table->verticalHeader()->hide();
        table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 12);
        table->horizontalHeader()->setHighlightSections(false);
        table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
        table->setShowGrid(false);
    }
}

} // namespace Editor
