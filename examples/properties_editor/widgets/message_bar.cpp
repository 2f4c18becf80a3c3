#include "message_bar.h"

#include "marks.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace Editor {

MessageBar::MessageBar(QWidget *parent)
    : QFrame(parent)
    , m_text(new QLabel(this))
    , m_action(new QPushButton(this))
    , m_dismissal(new QPushButton(this)) {
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    refreshColor();
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 6, 12, 6);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_action);
    layout->addWidget(m_dismissal);
    connect(m_dismissal, &QPushButton::clicked, this, &QWidget::hide);
    connect(m_action, &QPushButton::clicked, this, [this] {
        hide();
        Q_EMIT accepted();
    });
    hide();
}

void MessageBar::changeEvent(QEvent *event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        refreshColor();
}

void MessageBar::refreshColor() {
    const QColor color = severityColor(Zel::PackageModel::Severity::Warning);
    if (palette().color(QPalette::Window) == color)
        return;
    QPalette palette;
    palette.setColor(QPalette::Window, color);
    setPalette(palette);
}

void MessageBar::showMessage(const QString &text, const QString &action, const QString &dismissal) {
    m_text->setText(text);
    m_action->setText(action);
    m_action->setHidden(action.isEmpty());
    m_dismissal->setText(dismissal);
    show();
}

} // namespace Editor
