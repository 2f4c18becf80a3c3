#include "tab_order.h"

#include <QDockWidget>
#include <QLayout>
#include <QMainWindow>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QVector>

namespace Editor {
namespace {

// The stops of the Tab key in reading order.
class Stops {
public:
    void add(QWidget *widget) {
        if (!widget)
            return;
        if (auto *tabs = qobject_cast<QTabWidget *>(widget)) {
            const auto arrows = tabs->tabBar()->findChildren<QToolButton *>();
            for (QToolButton *arrow : arrows)
                arrow->setFocusPolicy(Qt::NoFocus);
            // Otherwise both the tab widget and its bar would be stops.
            tabs->setFocusProxy(nullptr);
            tabs->setFocusPolicy(Qt::NoFocus);
            add(tabs->tabBar());
            addAll(*tabs);
        } else if (const auto *splitter = qobject_cast<QSplitter *>(widget)) {
            addAll(*splitter);
        } else if (const auto *stack = qobject_cast<QStackedWidget *>(widget)) {
            addAll(*stack);
        } else if (const auto *scroll = qobject_cast<QScrollArea *>(widget)) {
            add(scroll->widget());
        } else if (const auto *dock = qobject_cast<QDockWidget *>(widget)) {
            add(dock->widget());
        } else if ((widget->focusPolicy() & Qt::TabFocus) != 0) {
            m_widgets.append(widget);
        } else {
            add(widget->layout());
        }
    }

    void apply() const {
        for (int i = 1; i < m_widgets.size(); ++i)
            QWidget::setTabOrder(m_widgets.at(i - 1), m_widgets.at(i));
    }

private:
    template<typename Container>
    void addAll(const Container &container) {
        for (int i = 0; i < container.count(); ++i)
            add(container.widget(i));
    }

    void add(QLayout *layout) {
        for (int i = 0; layout && i < layout->count(); ++i) {
            QLayoutItem *item = layout->itemAt(i);
            item->widget() ? add(item->widget()) : add(item->layout());
        }
    }

    QVector<QWidget *> m_widgets;
};

} // namespace

void setTabOrderOf(QMainWindow &window) {
    Stops stops;
    stops.add(window.centralWidget());
    const auto docks = window.findChildren<QDockWidget *>();
    for (QDockWidget *dock : docks) {
        if (!dock->isFloating())
            stops.add(dock);
    }
    // Of docks that are tabs; below their pages.
    const auto bars = window.findChildren<QTabBar *>(QString(), Qt::FindDirectChildrenOnly);
    for (QTabBar *bar : bars)
        stops.add(bar);
    stops.add(window.statusBar());
    stops.apply();
}

} // namespace Editor
