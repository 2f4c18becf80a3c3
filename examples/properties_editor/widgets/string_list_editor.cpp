#include "string_list_editor.h"

#include "marks.h"
#include "pages/page.h"
#include "text_field.h"
#include "typing_delegate.h"

#include <QCompleter>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QVBoxLayout>

namespace Editor {

StringListEditor::StringListEditor(Document &document, const QString &title,
                                   const QString &placeholder, QWidget *parent)
    : QWidget(parent)
    , m_model(new StringListModel(document, title, this))
    , m_view(new QListView(this))
    , m_line(new QLineEdit(this))
    , m_add(newListButton(tr("Add"), true, this))
    , m_remove(newListButton(tr("Remove"), false, this)) {
    m_view->setModel(m_model);
    setUpTable(m_view, document, title);
    m_view->setMinimumHeight(m_view->fontMetrics().lineSpacing() * 3);
    m_line->setPlaceholderText(placeholder);
    m_line->setAccessibleName(placeholder);
    m_line->setClearButtonEnabled(true);
    yieldUndo(m_line); // what was added last is undone, not what was typed for it

    auto *row = new QHBoxLayout;
    row->addWidget(m_line, 1);
    row->addWidget(m_add);
    row->addWidget(m_remove);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);
    layout->addLayout(row);

    connect(m_line, &QLineEdit::returnPressed, this, &StringListEditor::takePending);
    connect(m_line, &QLineEdit::textChanged, this, &StringListEditor::refresh);
    connect(m_add, &QPushButton::clicked, this, [this] {
        takePending();
        focusAddition(); // for the next one
    });
    removeWithDelete(m_view, m_remove);
    connect(m_remove, &QPushButton::clicked, this,
            [this] { m_model->remove(m_view->currentIndex().row()); });
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &StringListEditor::refresh);
    connect(&document, &Document::edited, this, &StringListEditor::refresh);
    refresh();
}

void StringListEditor::setSource(const ListSource &source) {
    m_line->clear();
    m_model->setSource(source);
    refresh();
}

void StringListEditor::setSuggestions(const QStringList &suggestions) {
    auto *completer = new QCompleter(suggestions, m_line);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_line->setCompleter(completer);
}

void StringListEditor::takePending() {
    const QString text = m_line->text();
    if (text.isEmpty() || !m_model->additionRefusal(text).isEmpty())
        return;
    m_model->add(text);
    m_line->clear();
    m_view->setCurrentIndex(m_model->index(m_model->rowCount() - 1, 0));
}

void StringListEditor::focusAddition() {
    m_line->setFocus(Qt::OtherFocusReason);
}

void StringListEditor::refresh() {
    const QString refusal = m_model->additionRefusal(m_line->text());
    markField(m_line, m_line->text().isEmpty() ? std::nullopt : Mark::ofRefusal(refusal));
    m_add->setEnabled(!m_line->text().isEmpty() && refusal.isEmpty());
    m_remove->setEnabled(m_view->currentIndex().isValid());
}

} // namespace Editor
