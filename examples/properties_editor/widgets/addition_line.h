#pragma once

#include "typed_text.h"

class QLineEdit;

namespace Editor {

class Document;
class FieldNote;
class StringListModel;

/// The line below a list whose text is added by Return; pasted lines are added at once, each as an
/// entry. Undo first reverts typing in the line.
class AdditionLine final : public TypedText {
    Q_OBJECT

public:
    AdditionLine(QLineEdit *line, Document &document, StringListModel &model);

    /// Must be placed below the line.
    FieldNote *note() const { return m_note; }
    bool canTake() const;
    /// Adds the text before the model shows another list. A refused text is dropped, and the
    /// document emits editRefused().
    void leave();

    void take() override;
    QString refusal() const override;
    void discard() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The text or its validity has changed.
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
