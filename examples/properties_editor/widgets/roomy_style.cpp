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

void RoomyStyle::polish(QPalette &palette) {
    QProxyStyle::polish(palette);
    // Qt 5 has the color of placeholders without a brush, which draws labels in it invisible.
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        palette.setColor(group, QPalette::PlaceholderText,
                         palette.color(group, QPalette::PlaceholderText));
}

} // namespace Editor
