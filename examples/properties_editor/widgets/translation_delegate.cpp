#include "translation_delegate.h"

#include "field_note.h"

#include <QAbstractItemView>

#include <utility>

namespace Editor {

TranslationDelegate::TranslationDelegate(Document &document, Bind bind, QAbstractItemView *view)
    : TypingDelegate(document, view)
    , m_editedDocument(document)
    , m_bind(std::move(bind)) {
}

QWidget *TranslationDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                           const QModelIndex &index) const {
    if (index.data(Qt::EditRole).toString().contains(u'\n'))
        return nullptr;
    auto *edit = new QLineEdit(parent);
    edit->setFrame(false);
    edit->setAccessibleName(index.model()->headerData(index.column(), Qt::Horizontal).toString());
    const auto *field = new TextField(edit, m_editedDocument, m_bind(index));
    field->note()->hover();
    return edit;
}

} // namespace Editor
