#pragma once

#include <QVector>
#include <QWidget>

class QListWidget;
class QStackedWidget;

namespace Editor {

class Page;

/// The pages of the window, beside the list that selects one.
class PageStack : public QWidget {
    Q_OBJECT

public:
    explicit PageStack(const QVector<Page *> &pages, QWidget *parent = nullptr);

    const QVector<Page *> &pages() const { return m_pages; }
    int current() const;
    void show(int index);

private:
    void add(Page *page);

    QVector<Page *> m_pages;
    QListWidget *m_navigation;
    QStackedWidget *m_stack;
};

} // namespace Editor
