#pragma once

#include "text_field.h"

#include <packagemodel/text_exchange.h>

class QLabel;

namespace Editor {

/// A text beside its translation, which is edited here. Speech scripts have a preview as plain text
/// below them.
class TextPair : public QWidget {
    Q_OBJECT

public:
    /// Edits the field that `binding` leads to.
    TextPair(Document &document, TextBinding binding, QWidget *parent = nullptr);

    /// Shows another text; one with the empty path cannot be edited.
    void show(const Zel::PackageModel::TranslatableText &text);
    /// Follows changes of the text that is shown.
    void refresh(const Zel::PackageModel::TranslatableText &text);
    /// Types the source as the translation, as an undo step of its own.
    void copySource();

    TextField *field() const { return m_field; }
    QPlainTextEdit *target() const { return m_target; }

private:
    Document &m_document;
    QPlainTextEdit *m_source;
    QPlainTextEdit *m_target;
    TextField *m_field;
    QLabel *m_sourcePreview;
    QLabel *m_targetPreview;
};

} // namespace Editor
