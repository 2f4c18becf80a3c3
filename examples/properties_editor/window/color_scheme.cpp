#include "color_scheme.h"

#include <QApplication>
#include <QPalette>
#include <QSettings>

namespace Editor {
namespace {

const QString darkKey = QStringLiteral("darkColors");

QPalette darkPalette() {
    const QColor window(0x24, 0x27, 0x2b);
    const QColor text(0xe6, 0xe8, 0xeb);
    const QColor faint(0x8b, 0x91, 0x99);
    QPalette palette(window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, QColor(0x2f, 0x33, 0x39));
    palette.setColor(QPalette::AlternateBase, QColor(0x34, 0x38, 0x3f));
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Button, QColor(0x3a, 0x3f, 0x46));
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::ToolTipBase, window);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::Link, QColor(0x6c, 0xb4, 0xf0));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x74, 0xb5));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faint);
    return palette;
}

} // namespace

void useColorScheme(ColorScheme scheme) {
    // An empty palette resolves to the platform's.
    QApplication::setPalette(scheme == ColorScheme::Dark ? darkPalette() : QPalette());
}

ColorScheme chosenColorScheme() {
    return QSettings().value(darkKey).toBool() ? ColorScheme::Dark : ColorScheme::Platform;
}

void chooseColorScheme(ColorScheme scheme) {
    QSettings().setValue(darkKey, scheme == ColorScheme::Dark);
    useColorScheme(scheme);
}

} // namespace Editor
