#include "page.h"

#include "widgets/icons.h"

#include <QAbstractItemView>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>

#include <utility>

namespace Editor {

Page::Page(Document &document, const QString &title, const QIcon &icon, QWidget *parent)
    : QWidget(parent)
    , m_document(document)
    , m_title(title)
    , m_icon(icon) {
}

TextField *addTextRow(QFormLayout *form, const QString &label, Document &document,
                      TextBinding binding, const QString &placeholder) {
    auto *edit = new QLineEdit(form->parentWidget());
    edit->setPlaceholderText(placeholder);
    form->addRow(label, edit);
    return new TextField(edit, document, std::move(binding));
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
