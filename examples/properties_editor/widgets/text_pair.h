#pragma once

#include "text_field.h"

#include <packagemodel/text_exchange.h>

class QLabel;

namespace Editor {

/// A text and its editable translation. Speech scripts have a plain-text preview below.
class TextPair : public QWidget {
    Q_OBJECT

public:
    /// Edits the field of `binding`.
    TextPair(Document &document, TextBinding binding, QWidget *parent = nullptr);

    /// Shows another text; it is read-only if its path is empty.
    void show(const Zel::PackageModel::TranslatableText &text);
    /// Updates the text that is shown.
    void refresh(const Zel::PackageModel::TranslatableText &text);
    /// Sets the translation to the source, as a separate undo step.
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
