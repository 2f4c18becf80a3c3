#include "text_field.h"

#include "document/field_edits.h"
#include "field_note.h"
#include "marks.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QTextCursor>

#include <algorithm>
#include <utility>

namespace Editor {
namespace {

using Zel::PackageModel::Edit;

// The common prefix and suffix of two texts.
struct Common {
    Common(const QString &a, const QString &b) {
        const auto length = std::min(a.size(), b.size());
        while (start < length && a.at(start) == b.at(start))
            ++start;
        if (start > 0 && a.at(start - 1).isHighSurrogate())
            --start;
        while (end < length - start && a.at(a.size() - 1 - end) == b.at(b.size() - 1 - end))
            ++end;
        if (end > 0 && a.at(a.size() - end).isLowSurrogate())
            --end;
    }
    int start = 0;
    int end = 0;
};

} // namespace

std::function<QString(const QString &)> refuseEmpty(const QString &reason) {
    return [reason](const QString &text) { return text.isEmpty() ? reason : QString(); };
}

bool isUndoOrRedo(const QEvent *event) {
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
        return false;
    const auto *key = static_cast<const QKeyEvent *>(event);
    return key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo);
}

TextField::TextField(QLineEdit *edit, Document &document, TextBinding binding)
    : TypedText(edit)
    , m_line(edit)
    , m_note(new FieldNote(edit))
    , m_document(document)
    , m_binding(std::move(binding)) {
    connect(edit, &QLineEdit::textEdited, this, &TextField::typed);
    connect(edit, &QLineEdit::editingFinished, this, &TextField::take);
    start();
}

TextField::TextField(QPlainTextEdit *edit, Document &document, TextBinding binding)
    : TypedText(edit)
    , m_plain(edit)
    , m_note(new FieldNote(edit))
    , m_document(document)
    , m_binding(std::move(binding)) {
    edit->setUndoRedoEnabled(false);
    edit->setTabChangesFocus(true);
    connect(edit, &QPlainTextEdit::textChanged, this, &TextField::typed);
    start();
}

void TextField::start() {
    widget()->installEventFilter(this);
    connect(&m_document, &Document::edited, this, &TextField::refresh);
    connect(&m_document, &Document::packageReplaced, this, &TextField::reload);
    connect(&m_document, &Document::issuesChanged, this, &TextField::mark);
    m_initial = Zel::PackageModel::value(m_document.package(), path());
    reload();
}

bool TextField::eventFilter(QObject *watched, QEvent *event) {
    if (m_plain && event->type() == QEvent::FocusOut)
        take();
    if (isUndoOrRedo(event)) {
        // Accepting a shortcut override keeps the key in the widget.
        const bool dropsText = !m_refusal.isEmpty();
        event->setAccepted(dropsText);
        if (dropsText && event->type() == QEvent::KeyPress)
            discard();
        return true;
    }
    return TypedText::eventFilter(watched, event);
}

void TextField::reload() {
    m_refusal.clear();
    m_shown = read();
    setText(m_shown, false);
    mark();
}

void TextField::refresh() {
    // During its own edit, the field keeps showing the typed text.
    if (!m_isBusy && read() != m_shown) {
        m_refusal.clear();
        m_shown = read();
        setText(m_shown, true);
    }
    mark();
}

void TextField::typed() {
    if (m_isBusy)
        return;
    const QScopedValueRollback<bool> busy(m_isBusy, true);
    const QString typed = text();
    const bool hasNewLine = m_plain && typed.count(u'\n') > m_shown.count(u'\n');
    m_refusal = m_binding.refusal ? m_binding.refusal(typed) : QString();
    if (!m_refusal.isEmpty())
        m_document.abandonRun(path());
    else if (typed != read())
        m_refusal = m_document.type(path(), typed);
    if (hasNewLine)
        m_document.closeRun();
    m_shown = read();
    mark();
}

void TextField::take() {
    m_document.closeRun();
    if (m_refusal.isEmpty() && text() != read())
        setText(read(), true); // as normalized by the package
}

void TextField::revert() {
    m_document.abandonRun(path());
    if (Zel::PackageModel::value(m_document.package(), path()) != m_initial && !path().isEmpty())
        m_document.edit({m_initial ? Edit{Edit::Action::Set, path(), m_initial}
                                   : Edit{Edit::Action::Remove, path()}});
    reload();
}

void TextField::mark() {
    auto mark = Mark::ofRefusal(m_refusal);
    if (!mark)
        mark = Mark::ofIssue(m_document.issueAt(path()));
    markField(widget(), mark);
    m_note->setReason(m_refusal);
}

QString TextField::read() const {
    return fieldText(m_document.package(), path());
}

QString TextField::text() const {
    return m_line ? m_line->text() : m_plain->toPlainText();
}

// With `keepsCursor`, moves the cursor to the change.
void TextField::setText(const QString &text, bool keepsCursor) {
    const QString old = this->text();
    if (text == old)
        return;
    const QScopedValueRollback<bool> busy(m_isBusy, true);
    const Common common(old, text);
    if (m_line) {
        m_line->setText(text);
        m_line->setCursorPosition(keepsCursor ? int(text.size()) - common.end : 0);
    } else if (keepsCursor) {
        QTextCursor cursor = m_plain->textCursor();
        cursor.setPosition(common.start);
        cursor.setPosition(int(old.size()) - common.end, QTextCursor::KeepAnchor);
        cursor.insertText(text.mid(common.start, text.size() - common.start - common.end));
        m_plain->setTextCursor(cursor);
    } else {
        m_plain->setPlainText(text);
    }
}

} // namespace Editor
