#pragma once

#include <QProxyStyle>

namespace Editor {

/// The platform's style with a little more air around the texts of lists and tables.
class RoomyStyle : public QProxyStyle {
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;
    /// Makes a style that of the application, which owns it from then on.
    static void use(RoomyStyle *style);

    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;
    using QProxyStyle::polish;
    void polish(QPalette &palette) override;
};

} // namespace Editor
