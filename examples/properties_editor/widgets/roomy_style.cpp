#include "roomy_style.h"

#include "icons.h"
#include "marks.h"

#include <QStyleOptionButton>

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

void RoomyStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                               QPainter *painter, const QWidget *widget) const {
    const auto *box = element == PE_IndicatorCheckBox
                          ? qstyleoption_cast<const QStyleOptionButton *>(option)
                          : nullptr;
    if (!box || box->palette.color(QPalette::Base).lightness() >= 128) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    // The frame is a darker shade of the window color, which is invisible in dark palettes.
    QStyleOptionButton lighter = *box;
    lighter.palette.setColor(QPalette::Window, mixed(box->palette.color(QPalette::Base),
                                                     box->palette.color(QPalette::Text), 0.8));
    QProxyStyle::drawPrimitive(element, &lighter, painter, widget);
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
