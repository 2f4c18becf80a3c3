#include "page.h"

#include "widgets/field_note.h"
#include "widgets/icons.h"

#include <QAbstractItemView>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace Editor {

Page::Page(Document &document, const QString &title, const QIcon &icon, QWidget *parent)
    : QWidget(parent)
    , m_document(document)
    , m_title(title)
    , m_icon(icon) {
}

bool Page::focusTextField(const Tano::FieldPath &path) {
    const auto fields = findChildren<TextField *>();
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [&](const TextField *field) { return field->path() == path; });
    if (found == fields.end())
        return false;
    (*found)->widget()->setFocus(Qt::OtherFocusReason);
    return true;
}

void addFieldRow(QFormLayout *form, const QString &label, TextField *field) {
    auto *column = new QVBoxLayout;
    column->setSpacing(2);
    column->addWidget(field->widget());
    column->addWidget(field->note());
    auto *labelWidget = new QLabel(label, form->parentWidget());
    labelWidget->setBuddy(field->widget());
    form->addRow(labelWidget, column);
}

TextField *addTextRow(QFormLayout *form, const QString &label, Document &document,
                      TextBinding binding, const QString &placeholder) {
    auto *edit = new QLineEdit(form->parentWidget());
    edit->setPlaceholderText(placeholder);
    auto *field = new TextField(edit, document, std::move(binding));
    addFieldRow(form, label, field);
    return field;
}

QPushButton *newListButton(const QString &text, bool isAddition, QWidget *parent) {
    auto *button = new QPushButton(iconOf(isAddition ? Symbol::Add : Symbol::Remove), text, parent);
    button->setAutoDefault(false);
    return button;
}

void removeWithDelete(QAbstractItemView *view, QAbstractButton *removal) {
    auto *shortcut = new QShortcut(Qt::Key_Delete, view);
    shortcut->setContext(Qt::WidgetShortcut);
    QObject::connect(shortcut, &QShortcut::activated, removal, &QAbstractButton::click);
}

void startTyping(QWidget *line) {
    line->setFocus(Qt::OtherFocusReason);
    if (auto *edit = qobject_cast<QLineEdit *>(line))
        edit->selectAll();
}

QWidget *newHeading(const QString &text, QWidget *parent) {
    auto *label = new QLabel(text, parent);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

} // namespace Editor
