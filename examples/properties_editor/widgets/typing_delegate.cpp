#include "typing_delegate.h"

#include "document/document.h"
#include "marks.h"
#include "models/table_model.h"
#include "text_field.h"

#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTableView>

namespace Editor {
namespace {

constexpr const char *refusalProperty = "refusal";
constexpr const char *isTypingProperty = "isTyping";

} // namespace

TypingDelegate::TypingDelegate(Document &document, QAbstractItemView *view)
    : QStyledItemDelegate(view)
    , m_document(document) {
    connect(this, &QAbstractItemDelegate::closeEditor, this, [this] { m_document.closeRun(); });
}

QString TypingDelegate::refusal(const QLineEdit *editor) {
    return editor->property(refusalProperty).toString();
}

QWidget *TypingDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                      const QModelIndex &index) const {
    const auto *model = qobject_cast<const TableModel *>(index.model());
    auto *self = const_cast<TypingDelegate *>(this); // Qt's signature; the editor reports back
    const auto choices = model->choices(index);
    if (!choices.isEmpty()) {
        auto *combo = new QComboBox(parent);
        for (const auto &[value, text] : choices)
            combo->addItem(text, value);
        connect(combo, qOverload<int>(&QComboBox::activated), self, [self, combo] {
            Q_EMIT self->commitData(combo);
            Q_EMIT self->closeEditor(combo);
        });
        return combo;
    }
    auto *edit = new QLineEdit(parent);
    edit->setFrame(false);
    edit->setAccessibleName(model->headerData(index.column(), Qt::Horizontal).toString());
    yieldUndo(edit);
    connect(edit, &QLineEdit::textEdited, self, [self, edit] { self->take(edit); });
    return edit;
}

void TypingDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const {
    const QString value = index.data(Qt::EditRole).toString();
    if (auto *combo = qobject_cast<QComboBox *>(editor)) {
        combo->setCurrentIndex(combo->findData(value));
        return;
    }
    auto *edit = qobject_cast<QLineEdit *>(editor);
    if (!edit->property(isTypingProperty).toBool() && edit->text() != value) {
        edit->setText(value);
        edit->setProperty(refusalProperty, QString());
    }
    auto mark = Mark::ofRefusal(refusal(edit));
    const QString text = index.data(Qt::AccessibleDescriptionRole).toString();
    if (!mark && !text.isEmpty())
        mark = Mark{Zel::PackageModel::Severity::Error, text};
    markField(edit, mark);
}

void TypingDelegate::take(QLineEdit *editor) {
    editor->setProperty(isTypingProperty, true);
    Q_EMIT commitData(editor);
    editor->setProperty(isTypingProperty, false);
}

void TypingDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                  const QModelIndex &index) const {
    if (const auto *combo = qobject_cast<QComboBox *>(editor)) {
        if (combo->currentIndex() >= 0)
            model->setData(index, combo->currentData());
        return;
    }
    auto *edit = qobject_cast<QLineEdit *>(editor);
    const QPersistentModelIndex cell(index);
    const QString text = edit->text();
    edit->setProperty(refusalProperty, qobject_cast<TableModel *>(model)->refusal(index, text));
    if (refusal(edit).isEmpty() && text != index.data(Qt::EditRole).toString())
        model->setData(index, text);
    if (edit->property(isTypingProperty).toBool())
        setEditorData(edit, cell); // for the mark
}

QSize TypingDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const {
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    size.setHeight(std::max(size.height(), option.fontMetrics.height() + 10));
    return size;
}

bool TypingDelegate::eventFilter(QObject *watched, QEvent *event) {
    auto *edit = qobject_cast<QLineEdit *>(watched);
    if (edit && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Escape)
            m_document.abandonRun();
        else if ((key == Qt::Key_Return || key == Qt::Key_Enter) && !refusal(edit).isEmpty())
            return true; // to be mended first
    }
    return QStyledItemDelegate::eventFilter(watched, event);
}

void setUpTable(QAbstractItemView *view, Document &document, const QString &accessibleName) {
    view->setItemDelegate(new TypingDelegate(document, view));
    view->setAccessibleName(accessibleName);
    view->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                          QAbstractItemView::AnyKeyPressed | QAbstractItemView::SelectedClicked);
    view->setTabKeyNavigation(false);
    view->setAlternatingRowColors(true);
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
