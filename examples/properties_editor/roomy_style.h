#pragma once

#include <QProxyStyle>

namespace Editor {

/// The platform's style with a little more air around the texts of lists and tables.
class RoomyStyle : public QProxyStyle {
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;
    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;
};

} // namespace Editor
