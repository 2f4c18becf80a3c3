#include "field_note.h"

#include "marks.h"

#include <QAccessible>
#include <QEvent>
#include <QScrollArea>

#include <algorithm>

namespace Editor {
namespace {

// The page, with which the note scrolls, or else the window.
QWidget *pageOf(QWidget *field) {
    QWidget *page = field->parentWidget();
    while (!page->isWindow()) {
        QWidget *viewport = page->parentWidget();
        if (qobject_cast<QScrollArea *>(viewport->parentWidget()))
            break;
        page = viewport;
    }
    return page;
}

} // namespace

FieldNote::FieldNote(QWidget *field)
    : QLabel(field->parentWidget())
    , m_field(field) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAutoFillBackground(true);
    constexpr int margin = 4;
    setMargin(margin);
    hide();
}

void FieldNote::setReason(const QString &reason) {
    if (reason == text() && isHidden() == reason.isEmpty())
        return;
    setText(reason);
    QPalette palette;
    palette.setColor(QPalette::Window, severityColor(Zel::PackageModel::Severity::Error));
    palette.setColor(QPalette::WindowText, this->palette().color(QPalette::Text));
    setPalette(palette);
    if (m_hovers && !reason.isEmpty())
        place();
    setVisible(!reason.isEmpty());
    if (!reason.isEmpty()) {
        QAccessibleEvent alert(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

void FieldNote::hover() {
    m_hovers = true;
    setParent(pageOf(m_field));
    setFrameShape(QFrame::Box);
    m_field->installEventFilter(this);
    connect(m_field, &QObject::destroyed, this, &QObject::deleteLater);
}

bool FieldNote::eventFilter(QObject *watched, QEvent *event) {
    const QEvent::Type type = event->type();
    if (type == QEvent::Hide)
        hide();
    else if ((type == QEvent::Move || type == QEvent::Resize) && !isHidden())
        place();
    return QLabel::eventFilter(watched, event);
}

void FieldNote::place() {
    const QWidget *page = parentWidget();
    constexpr int widest = 360;
    const int width =
        std::min({std::max(m_field->width(), widest), sizeHint().width(), page->width()});
    resize(width, heightForWidth(width));
    const QPoint field = m_field->mapTo(page, QPoint());
    const int below = field.y() + m_field->height();
    const bool fits = below + height() <= page->height();
    const int x =
        layoutDirection() == Qt::RightToLeft ? field.x() + m_field->width() - width : field.x();
    move(std::clamp(x, 0, page->width() - width), fits ? below : field.y() - height());
    raise();
}

} // namespace Editor
