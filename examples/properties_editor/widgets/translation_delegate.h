#pragma once

#include "text_field.h"
#include "typing_delegate.h"

namespace Editor {

/// Edits cells in place with a TextField whose binding a function provides, except for multi-line
/// texts.
class TranslationDelegate : public TypingDelegate {
    Q_OBJECT

public:
    using Bind = std::function<TextBinding(const QModelIndex &index)>;

    TranslationDelegate(Document &document, Bind bind, QAbstractItemView *view);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;

private:
    Document &m_editedDocument;
    Bind m_bind;
};

} // namespace Editor
