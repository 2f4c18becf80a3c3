#include "window_state.h"

#include <QMainWindow>
#include <QScreen>
#include <QSettings>

namespace Editor {
namespace {

const QString geometryKey = QStringLiteral("window/geometry");
const QString docksKey = QStringLiteral("window/docks");
const QString pageKey = QStringLiteral("window/page");

void fitScreen(QWidget &window) {
    const QRect screen = window.screen()->availableGeometry();
    const QSize size = window.size().boundedTo(screen.size());
    if (size != window.size())
        window.resize(size);
    if (!screen.contains(QRect(window.pos(), size)))
        window.move(screen.center() - QPoint(size.width() / 2, size.height() / 2));
}

} // namespace

void saveWindowState(const QMainWindow &window, int page) {
    QSettings settings;
    settings.setValue(geometryKey, window.saveGeometry());
    settings.setValue(docksKey, window.saveState());
    settings.setValue(pageKey, page);
}

int restoreWindowState(QMainWindow &window) {
    const QSettings settings;
    window.restoreGeometry(settings.value(geometryKey).toByteArray());
    window.restoreState(settings.value(docksKey).toByteArray());
    if (!window.isMaximized() && !window.isFullScreen())
        fitScreen(window);
    return settings.value(pageKey, -1).toInt();
}

} // namespace Editor
