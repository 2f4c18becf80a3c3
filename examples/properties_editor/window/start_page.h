#pragma once

#include <QWidget>

class QTreeWidget;

namespace Editor {

/// Shown before a package is open: templates and recent files.
class StartPage : public QWidget {
    Q_OBJECT

public:
    explicit StartPage(QWidget *parent = nullptr);
    /// Updates the list of files.
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
