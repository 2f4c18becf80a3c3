#pragma once

#include "document/document.h"
#include "typed_text.h"

#include <QLineEdit>
#include <QPlainTextEdit>

#include <functional>

namespace Editor {

class FieldNote;

/// The field of the package that a widget shows.
struct TextBinding {
    /// Empty if there is no such field.
    std::function<Tano::FieldPath()> path;
    /// The reason why the field refuses a text that the package would accept; optional.
    std::function<QString(const QString &text)> refusal = {};
};

/// Refuses empty texts with this reason.
std::function<QString(const QString &text)> refuseEmpty(const QString &reason);

/// Synchronizes a text widget with a text of the package.
///
/// Typing is one undo step until the focus leaves, Return or a line break is typed, or a pause ends
/// the run. A refused text stays in the field with the reason in note(), while the package keeps
/// its value from before the run. Undo and redo are those of the document; undo discards a refused
/// text first.
class TextField : public TypedText {
    Q_OBJECT

public:
    TextField(QLineEdit *edit, Document &document, TextBinding binding);
    TextField(QPlainTextEdit *edit, Document &document, TextBinding binding);

    Tano::FieldPath path() const { return m_binding.path(); }
    /// Shows the package's text, for example after another entry was selected.
    void reload();
    /// Restores the initial text, for leaving a cell's editor with Escape.
    void revert();
    /// Must be placed below the widget.
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
    QString m_shown; // the package's text at the last update
    QString m_refusal;
    bool m_isBusy = false;
};

/// Whether a key event is a shortcut for undo or redo, which the window's actions should handle.
bool isUndoOrRedo(const QEvent *event);

} // namespace Editor
