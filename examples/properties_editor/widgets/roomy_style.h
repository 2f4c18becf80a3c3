#pragma once

#include <QProxyStyle>

namespace Editor {

/// The platform's style with more space around texts in lists and tables, and with the editor's
/// icons in Qt's own dialogs and fields.
class RoomyStyle : public QProxyStyle {
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr,
                  const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    QIcon standardIcon(StandardPixmap pixmap, const QStyleOption *option = nullptr,
                       const QWidget *widget = nullptr) const override;
};

} // namespace Editor
