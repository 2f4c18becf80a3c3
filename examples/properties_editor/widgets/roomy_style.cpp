#include "roomy_style.h"

#include "icons.h"

namespace Editor {

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

int RoomyStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                          QStyleHintReturn *returnData) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

QIcon RoomyStyle::standardIcon(StandardPixmap pixmap, const QStyleOption *option,
                               const QWidget *widget) const {
    switch (pixmap) {
    case SP_MessageBoxCritical:
        return iconOf(Symbol::Error);
    case SP_MessageBoxWarning:
        return iconOf(Symbol::Warning);
    case SP_MessageBoxInformation:
        return iconOf(Symbol::Note);
    case SP_MessageBoxQuestion:
        return iconOf(Symbol::Question);
    case SP_LineEditClearButton:
        return iconOf(Symbol::Clear);
    default:
        return QProxyStyle::standardIcon(pixmap, option, widget);
    }
}

} // namespace Editor
