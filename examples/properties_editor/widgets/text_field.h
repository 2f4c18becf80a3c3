#pragma once

#include "document/document.h"
#include "typed_text.h"

#include <QLineEdit>
#include <QPlainTextEdit>

#include <functional>

namespace Editor {

class FieldNote;

/// Which field of the package a widget shows.
struct TextBinding {
    /// The empty path while there is no such field.
    std::function<Tano::FieldPath()> path;
    /// Why the field cannot take a text that the package could take; left out where it can.
    std::function<QString(const QString &text)> refusal = {};
};

/// Refuses the empty text, with that reason.
std::function<QString(const QString &text)> refuseEmpty(const QString &reason);

/// Keeps a text widget and a text of the package alike, in both directions.
///
/// What is typed is one undo step until the focus leaves, Return or a line break is typed, or a
/// pause ends the run. A refused text stays in the field, with the reason in note(), while the
/// package keeps what it had before the run. Undo and redo are those of the document; where the
/// text is refused, undo drops it.
class TextField : public TypedText {
    Q_OBJECT

public:
    TextField(QLineEdit *edit, Document &document, TextBinding binding);
    TextField(QPlainTextEdit *edit, Document &document, TextBinding binding);

    Tano::FieldPath path() const { return m_binding.path(); }
    /// Shows the text of the package, for example because it is another entry's now.
    void reload();
    /// Restores what the field held when it was made: for a cell's editor that is left with Escape.
    void revert();
    /// To be placed below the widget.
    FieldNote *note() const { return m_note; }

    void take() override;
    QString refusal() const override { return m_refusal; }
    void discard() override { reload(); }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void start();
    void refresh();
    void typed();
    void mark();
    QString read() const;
    QString text() const;
    void setText(const QString &text, bool keepsCursor);

    QLineEdit *m_line = nullptr;
    QPlainTextEdit *m_plain = nullptr;
    FieldNote *m_note;
    Document &m_document;
    TextBinding m_binding;
    std::optional<Zel::PackageModel::FieldValue> m_initial;
    QString m_shown; // what the package held when the field was last brought up to date
    QString m_refusal;
    bool m_isBusy = false;
};

/// Whether a key event is the shortcut of undo or redo, which the window's actions may do.
bool isUndoOrRedo(const QEvent *event);

} // namespace Editor
