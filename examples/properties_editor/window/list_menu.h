#pragma once

#include <QObject>
#include <QPointer>
#include <QVector>

class QAction;
class QMenu;

namespace Editor {

/// Offers the actions of the list that has the focus in a menu, which owns this.
class ListMenu : public QObject {
    Q_OBJECT

public:
    explicit ListMenu(QMenu *menu);

private:
    void follow(const QWidget *focus);

    QMenu *m_menu;
    QAction *m_separator;
    QVector<QPointer<QAction>> m_actions; // of the list and a separator above them
};

} // namespace Editor
