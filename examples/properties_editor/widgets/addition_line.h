#pragma once

#include "typed_text.h"

class QLineEdit;

namespace Editor {

class Document;
class FieldNote;
class StringListModel;

/// The line below a list whose text becomes a new entry with Return: each line of a pasted text
/// becomes one, at once. Undo in it takes back what was typed, as long as there is any.
class AdditionLine : public TypedText {
    Q_OBJECT

public:
    AdditionLine(QLineEdit *line, Document &document, StringListModel &model);

    /// To be placed below the line.
    FieldNote *note() const { return m_note; }
    bool canTake() const;
    /// Takes the text before the model shows another list. A text that is refused is dropped, and
    /// the document sends editRefused().
    void leave();

    void take() override;
    QString refusal() const override;
    void discard() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The text, or whether it can be taken, has changed.
    void changed();
    void added();

private:
    void refresh();

    QLineEdit *m_line;
    Document &m_document;
    StringListModel &m_model;
    FieldNote *m_note;
};

} // namespace Editor
