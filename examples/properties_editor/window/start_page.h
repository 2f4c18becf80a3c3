#pragma once

#include <QWidget>

class QTreeWidget;

namespace Editor {

/// What the window shows before a package is open: templates, and the files that were open last.
class StartPage : public QWidget {
    Q_OBJECT

public:
    explicit StartPage(QWidget *parent = nullptr);
    /// Looks again which files there are.
    void refresh();

Q_SIGNALS:
    void openWanted();
    void fileWanted(const QString &fileName);
    void templateWanted(const QString &resource);

private:
    QWidget *newActions();

    QTreeWidget *m_recent;
};

} // namespace Editor
