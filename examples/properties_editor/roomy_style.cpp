#include "roomy_style.h"

#include <QApplication>

namespace Editor {

void RoomyStyle::use(RoomyStyle *style) {
    QApplication::setStyle(style);
}

int RoomyStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                            const QWidget *widget) const {
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
    case PM_FocusFrameHMargin: // around the text and the icon of an item
        return usual + 3;
    case PM_HeaderMargin:
        return usual + 4;
    default:
        return usual;
    }
}

} // namespace Editor
