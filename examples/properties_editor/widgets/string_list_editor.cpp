#include "string_list_editor.h"

#include "addition_line.h"
#include "field_note.h"
#include "pages/page.h"
#include "row_actions.h"
#include "typing_delegate.h"

#include <QCompleter>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace Editor {

StringListEditor::StringListEditor(Document &document, const QString &title,
                                   const QString &placeholder,
                                   std::function<Tano::FieldPath()> list, bool isOrdered,
                                   QWidget *parent)
    : QWidget(parent)
    , m_model(new StringListModel(document, title, std::move(list), this))
    , m_view(new QListView(this))
    , m_line(new QLineEdit(this))
    , m_addition(new AdditionLine(m_line, document, *m_model))
    , m_add(newListButton(tr("Add"), true, this))
    , m_remove(newListButton(tr("Remove"), false, this)) {
    m_view->setModel(m_model);
    setUpTable(m_view, document, title);
    m_view->setMinimumHeight(m_view->fontMetrics().lineSpacing() * 3);
    m_line->setPlaceholderText(placeholder);
    m_line->setAccessibleName(placeholder);
    m_line->setClearButtonEnabled(true);

    auto *row = new QHBoxLayout;
    row->addWidget(m_line, 1);
    row->addWidget(m_add);
    row->addWidget(m_remove);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);
    layout->addLayout(row);
    layout->addWidget(m_addition->note());

    connect(m_add, &QPushButton::clicked, this, [this] {
        m_addition->take();
        m_line->setFocus(Qt::OtherFocusReason); // for the next text
    });
    connect(m_addition, &AdditionLine::changed, this, &StringListEditor::refresh);
    connect(m_addition, &AdditionLine::added, this,
            [this] { selectAlone(m_view, m_model->index(m_model->rowCount() - 1, 0)); });
    auto *rows = new RowActions(m_view, document, {[this] { return m_model->list(); }, isOrdered});
    connect(m_remove, &QPushButton::clicked, rows, &RowActions::remove);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &StringListEditor::refresh);
    refresh();
}

void StringListEditor::setSuggestions(const QStringList &suggestions) {
    auto *completer = new QCompleter(suggestions, m_line);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_line->setCompleter(completer);
}

void StringListEditor::leave() {
    m_addition->leave();
}

void StringListEditor::reload() {
    m_model->sync();
    refresh();
}

void StringListEditor::showItem(int row) {
    const QModelIndex index = m_model->index(row, 0);
    if (index.isValid())
        selectAlone(m_view, index);
    QWidget *shown = index.isValid() ? static_cast<QWidget *>(m_view) : m_line;
    shown->setFocus(Qt::OtherFocusReason);
}

void StringListEditor::refresh() {
    m_add->setEnabled(m_addition->canTake());
    m_remove->setEnabled(m_view->currentIndex().isValid());
}

} // namespace Editor
