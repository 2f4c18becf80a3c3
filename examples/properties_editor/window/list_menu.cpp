#include "list_menu.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>

#include <utility>

namespace Editor {

ListMenu::ListMenu(QMenu *menu)
    : QObject(menu)
    , m_menu(menu)
    , m_separator(new QAction(this)) {
    m_separator->setSeparator(true);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, const QWidget *focus) {
        // Alt gives the focus to the menu bar, and another window takes it.
        if (focus && focus->window() == m_menu->parentWidget()->window() &&
            !qobject_cast<const QMenuBar *>(focus))
            follow(focus);
    });
}

void ListMenu::follow(const QWidget *focus) {
    for (const auto &action : std::exchange(m_actions, {}))
        m_menu->removeAction(action);
    const auto *list = qobject_cast<const QAbstractItemView *>(focus);
    if (!list || list->actions().isEmpty())
        return;
    m_actions.append(m_separator);
    const auto actions = list->actions();
    for (QAction *action : actions)
        m_actions.append(action);
    for (const auto &action : std::as_const(m_actions))
        m_menu->addAction(action);
}

} // namespace Editor
