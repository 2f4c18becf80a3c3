#include "text_field.h"

#include "document/field_edits.h"
#include "marks.h"

#include <QKeyEvent>

#include <utility>

namespace Editor {
namespace {

// A widget that accepts the override of a shortcut keeps the key to itself.
class UndoYielder : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() == QEvent::ShortcutOverride) {
            const auto *key = static_cast<QKeyEvent *>(event);
            if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
                event->ignore();
                return true;
            }
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

void yieldUndo(QWidget *widget) {
    widget->installEventFilter(new UndoYielder(widget));
}

TextField::TextField(QLineEdit *edit, Document &document, TextBinding binding)
    : QObject(edit)
    , m_widget(edit)
    , m_line(edit)
    , m_document(document)
    , m_binding(std::move(binding)) {
    connect(edit, &QLineEdit::textEdited, this, &TextField::take);
    connect(edit, &QLineEdit::editingFinished, this, &TextField::finish);
    start();
}

TextField::TextField(QPlainTextEdit *edit, Document &document, TextBinding binding)
    : QObject(edit)
    , m_widget(edit)
    , m_plain(edit)
    , m_document(document)
    , m_binding(std::move(binding)) {
    edit->setUndoRedoEnabled(false);
    edit->setTabChangesFocus(true);
    edit->installEventFilter(this);
    connect(edit, &QPlainTextEdit::textChanged, this, &TextField::take);
    start();
}

void TextField::start() {
    yieldUndo(m_widget);
    connect(&m_document, &Document::edited, this, &TextField::refresh);
    connect(&m_document, &Document::packageReplaced, this, &TextField::reload);
    connect(&m_document, &Document::issuesChanged, this, &TextField::mark);
    reload();
}

bool TextField::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::FocusOut)
        finish();
    return QObject::eventFilter(watched, event);
}

void TextField::reload() {
    m_refusal.clear();
    m_shown = read();
    setText(m_shown);
    mark();
}

void TextField::refresh() {
    // While its own edit is under way, the field shows what is being typed.
    if (!m_isBusy && read() != m_shown)
        reload();
    else
        mark();
}

void TextField::take() {
    if (m_isBusy)
        return;
    const QString typed = text();
    m_refusal = typed.isEmpty() ? m_binding.emptyRefusal : QString();
    if (m_refusal.isEmpty())
        m_refusal = textRefusal(m_document.package(), m_binding.path(), typed);
    if (m_refusal.isEmpty() && typed != read()) {
        m_isBusy = true;
        m_document.pushTyped(
            [this, typed](bool isFinal) { return m_binding.write(typed, isFinal); });
        m_isBusy = false;
        m_shown = read();
    }
    mark();
}

void TextField::finish() {
    m_isBusy = true;
    m_document.closeRun();
    m_isBusy = false;
    if (m_refusal.isEmpty() && text() != read())
        reload(); // as the package has put it
}

void TextField::mark() {
    auto mark = Mark::ofRefusal(m_refusal);
    if (!mark)
        mark = Mark::ofIssue(m_document.issueAt(m_binding.path()));
    markField(m_widget, mark);
}

QString TextField::read() const {
    return fieldText(m_document.package(), m_binding.path());
}

QString TextField::text() const {
    return m_line ? m_line->text() : m_plain->toPlainText();
}

void TextField::setText(const QString &text) {
    if (text == this->text())
        return;
    const bool wasBusy = std::exchange(m_isBusy, true);
    if (m_line) {
        m_line->setText(text);
        m_line->setCursorPosition(0);
    } else {
        m_plain->setPlainText(text);
    }
    m_isBusy = wasBusy;
}

} // namespace Editor
