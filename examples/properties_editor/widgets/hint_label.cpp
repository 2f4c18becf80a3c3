#include "hint_label.h"

#include "marks.h"

#include <QApplication>
#include <QEvent>

namespace Editor {

HintLabel::HintLabel(const QString &text, QWidget *parent)
    : QLabel(text, parent) {
    setTextFormat(Qt::PlainText);
    setForegroundRole(QPalette::WindowText); // also on a list
    refreshColor();
}

void HintLabel::changeEvent(QEvent *event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange)
        refreshColor();
}

void HintLabel::refreshColor() {
    const QPalette usual = QApplication::palette();
    const QColor color =
        mixed(usual.color(QPalette::WindowText), usual.color(QPalette::Window), 0.3);
    if (palette().color(QPalette::WindowText) == color)
        return;
    QPalette own;
    own.setColor(QPalette::WindowText, color);
    setPalette(own);
}

} // namespace Editor
