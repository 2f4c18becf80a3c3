#include "addition_line.h"

#include "document/row_edits.h"
#include "field_note.h"
#include "marks.h"
#include "models/string_list_model.h"
#include "text_field.h"

#include <QLineEdit>

namespace Editor {

AdditionLine::AdditionLine(QLineEdit *line, Document &document, StringListModel &model)
    : TypedText(line)
    , m_line(line)
    , m_document(document)
    , m_model(model)
    , m_note(new FieldNote(line)) {
    line->installEventFilter(this);
    connect(line, &QLineEdit::returnPressed, this, &AdditionLine::take);
    connect(line, &QLineEdit::textChanged, this, &AdditionLine::refresh);
    connect(line, &QLineEdit::textEdited, this, [this](const QString &text) {
        if (linesOf(text).size() > 1)
            take();
    });
    connect(&document, &Document::edited, this, &AdditionLine::refresh);
    refresh();
}

bool AdditionLine::eventFilter(QObject *watched, QEvent *event) {
    if (isUndoOrRedo(event) && m_line->text().isEmpty()) {
        event->ignore(); // leave the key to the window's actions
        return true;
    }
    return TypedText::eventFilter(watched, event);
}

bool AdditionLine::canTake() const {
    return !m_line->text().isEmpty() && refusal().isEmpty();
}

void AdditionLine::take() {
    QStringList additions;
    QStringList rest;
    const QStringList lines = linesOf(m_line->text());
    for (const QString &line : lines)
        (m_model.additionRefusal(line).isEmpty() ? additions : rest).append(line);
    additions.removeDuplicates();
    if (!additions.isEmpty())
        m_model.add(additions);
    if (rest != lines)
        m_line->setText(rest.join(u'\n'));
    if (!additions.isEmpty())
        Q_EMIT added();
}

void AdditionLine::leave() {
    if (m_document.isStepping())
        return; // the text stays in the line: an edit would drop the commands to redo
    take();
    const QString reason = refusal();
    discard();
    // The caller is about to show another list.
    if (!reason.isEmpty() && !m_model.list().isEmpty())
        Q_EMIT m_document.editRefused(reason);
}

QString AdditionLine::refusal() const {
    const QStringList lines = linesOf(m_line->text());
    return lines.isEmpty() ? QString() : m_model.additionRefusal(lines.first());
}

void AdditionLine::discard() {
    m_line->setText({}); // also clears the widget's own undo history
}

void AdditionLine::refresh() {
    const QString reason = refusal();
    markField(m_line, Mark::ofRefusal(reason));
    m_note->setReason(reason);
    Q_EMIT changed();
}

} // namespace Editor
