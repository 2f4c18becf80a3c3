#include "window_state.h"

#include <QHeaderView>
#include <QMainWindow>
#include <QMap>
#include <QScreen>
#include <QSettings>
#include <QSplitter>

namespace Editor {
namespace {

const QString geometryKey = QStringLiteral("window/geometry");
const QString docksKey = QStringLiteral("window/docks");
const QString pageKey = QStringLiteral("window/page");
const QString layoutGroup = QStringLiteral("layout/");

void fitScreen(QWidget &window) {
    const QRect screen = window.screen()->availableGeometry();
    const QSize size = window.size().boundedTo(screen.size());
    if (size != window.size())
        window.resize(size);
    if (!screen.contains(QRect(window.pos(), size)))
        window.move(screen.center() - QPoint(size.width() / 2, size.height() / 2));
}

// The nearest class of the editor around a widget, such as a page.
QString ownerOf(const QWidget *widget) {
    const QString ownClasses = QStringLiteral("Editor::");
    for (const QWidget *owner = widget->parentWidget(); owner; owner = owner->parentWidget()) {
        const QString name = QLatin1String(owner->metaObject()->className());
        if (name.startsWith(ownClasses))
            return name.mid(ownClasses.size());
    }
    return {};
}

// The widgets of a class by the keys of their settings: "layout/BehaviorsPage/QSplitter0".
template<typename Widget>
QMap<QString, Widget *> widgetsOf(const QMainWindow &window) {
    QMap<QString, Widget *> widgets;
    QMap<QString, int> counts;
    const auto all = window.findChildren<Widget *>();
    for (Widget *widget : all) {
        const QString key = layoutGroup + ownerOf(widget) + u'/' +
                            QLatin1String(Widget::staticMetaObject.className());
        widgets.insert(key + QString::number(counts[key]++), widget);
    }
    return widgets;
}

// The widths of the columns that users can change; 0 for others.
QVariantList widthsOf(const QHeaderView &header) {
    QVariantList widths;
    for (int column = 0; column < header.count(); ++column) {
        const bool isFree = header.orientation() == Qt::Horizontal &&
                            header.sectionResizeMode(column) == QHeaderView::Interactive &&
                            !(header.stretchLastSection() && column == header.count() - 1);
        widths.append(isFree ? header.sectionSize(column) : 0);
    }
    return widths;
}

void setWidths(QHeaderView &header, const QVariantList &widths) {
    const QVariantList present = widthsOf(header);
    for (int column = 0; column < present.size() && column < widths.size(); ++column) {
        if (present.at(column).toInt() > 0 && widths.at(column).toInt() > 0)
            header.resizeSection(column, widths.at(column).toInt());
    }
}

} // namespace

void saveWindowState(const QMainWindow &window, int page) {
    QSettings settings;
    settings.setValue(geometryKey, window.saveGeometry());
    settings.setValue(docksKey, window.saveState());
    settings.setValue(pageKey, page);
    const auto splitters = widgetsOf<QSplitter>(window);
    for (auto it = splitters.begin(); it != splitters.end(); ++it)
        settings.setValue(it.key(), it.value()->saveState());
    const auto headers = widgetsOf<QHeaderView>(window);
    for (auto it = headers.begin(); it != headers.end(); ++it)
        settings.setValue(it.key(), widthsOf(*it.value()));
}

int restoreWindowState(QMainWindow &window) {
    const QSettings settings;
    window.restoreGeometry(settings.value(geometryKey).toByteArray());
    window.restoreState(settings.value(docksKey).toByteArray());
    if (!window.isMaximized() && !window.isFullScreen())
        fitScreen(window);
    const auto splitters = widgetsOf<QSplitter>(window);
    for (auto it = splitters.begin(); it != splitters.end(); ++it)
        it.value()->restoreState(settings.value(it.key()).toByteArray());
    const auto headers = widgetsOf<QHeaderView>(window);
    for (auto it = headers.begin(); it != headers.end(); ++it)
        setWidths(*it.value(), settings.value(it.key()).toList());
    return settings.value(pageKey, -1).toInt();
}

} // namespace Editor
