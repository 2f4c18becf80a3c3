#include "text_pair.h"

#include "field_note.h"
#include "hint_label.h"

#include <packagemodel/package_scripts.h>
#include <packagemodel/text_states.h>

#include <QGridLayout>

#include <utility>

namespace Editor {

using Zel::PackageModel::TranslatableText;

namespace {

QLabel *newPreview(QWidget *parent) {
    auto *preview = new HintLabel(QString(), parent);
    preview->setTextFormat(Qt::PlainText);
    preview->setWordWrap(true);
    preview->setTextInteractionFlags(Qt::TextSelectableByMouse);
    preview->hide();
    return preview;
}

void preview(QLabel *label, const Tano::FieldPath &path, const QString &text) {
    label->setVisible(Zel::PackageModel::isSpeechScript(path, text));
    const auto plain = Zel::PackageModel::plainTextOf(text);
    label->setText(plain.error.isEmpty()
                       ? TextPair::tr("As plain text: %1").arg(plain.text)
                       : TextPair::tr("Malformed speech script: %1").arg(plain.error));
}

} // namespace

TextPair::TextPair(Document &document, TextBinding binding, QWidget *parent)
    : QWidget(parent)
    , m_document(document)
    , m_source(new QPlainTextEdit(this))
    , m_target(new QPlainTextEdit(this))
    , m_field(new TextField(m_target, document, std::move(binding)))
    , m_sourcePreview(newPreview(this))
    , m_targetPreview(newPreview(this)) {
    m_source->setReadOnly(true);
    m_source->setTabChangesFocus(true);
    m_source->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_source->setAccessibleName(tr("Source text"));
    m_target->setAccessibleName(tr("Translation"));
    m_target->setPlaceholderText(tr("Type the translation; Ctrl+Return goes on"));
    for (QPlainTextEdit *edit : {m_source, m_target})
        edit->setMinimumHeight(edit->fontMetrics().lineSpacing() * 2 + 14);

    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_source, 0, 0);
    layout->addWidget(m_target, 0, 1);
    layout->addWidget(m_field->note(), 1, 1);
    layout->addWidget(m_sourcePreview, 2, 0, Qt::AlignTop);
    layout->addWidget(m_targetPreview, 2, 1, Qt::AlignTop);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(0, 1);
}

void TextPair::show(const TranslatableText &text) {
    m_field->reload();
    m_target->setReadOnly(text.path.isEmpty()); // a disabled widget would lose the focus
    refresh(text);
    QTextCursor cursor = m_target->textCursor();
    cursor.movePosition(QTextCursor::End);
    m_target->setTextCursor(cursor);
}

void TextPair::refresh(const TranslatableText &text) {
    if (m_source->toPlainText() != text.source)
        m_source->setPlainText(text.source);
    preview(m_sourcePreview, text.path, text.source);
    preview(m_targetPreview, text.path, text.target);
}

void TextPair::copySource() {
    m_document.closeRun();
    m_target->selectAll();
    m_target->insertPlainText(m_source->toPlainText());
    m_document.closeRun();
}

} // namespace Editor
