#pragma once

#include "document/document.h"

#include <QLineEdit>
#include <QPlainTextEdit>

#include <functional>

namespace Editor {

/// Which field of the package a widget shows, and which command writes it.
struct TextBinding {
    /// The empty path while there is no such field.
    std::function<Tano::FieldPath()> path;
    std::function<QUndoCommand *(const QString &text, bool isFinal)> write;
    /// What to say of an empty text, if the field must not be empty.
    QString emptyRefusal = {};
};

/// Keeps a text widget and a text of the package alike, in both directions.
///
/// Each keystroke is a command of one run, which ends when the focus leaves or with Return. A text
/// that is refused stays in the field, marked, and reaches the package only when it is mended.
/// Undo and redo are those of the document, not of the widget.
class TextField : public QObject {
    Q_OBJECT

public:
    TextField(QLineEdit *edit, Document &document, TextBinding binding);
    TextField(QPlainTextEdit *edit, Document &document, TextBinding binding);

    /// Shows the text of the package, for example since it is that of another entry now.
    void reload();
    /// Why the text in the field cannot be taken; empty when it can.
    const QString &refusal() const { return m_refusal; }
    QWidget *widget() const { return m_widget; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void start();
    void refresh();
    void take();
    void finish();
    void mark();
    QString read() const;
    QString text() const;
    void setText(const QString &text);

    QWidget *m_widget;
    QLineEdit *m_line = nullptr;
    QPlainTextEdit *m_plain = nullptr;
    Document &m_document;
    TextBinding m_binding;
    QString m_shown; // what the package held when the field was last brought up to date
    QString m_refusal;
    bool m_isBusy = false;
};

/// Leaves undo and redo, while the widget has the focus, to the window's actions.
void yieldUndo(QWidget *widget);

} // namespace Editor
