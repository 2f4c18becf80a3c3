#pragma once

#include "document/document.h"

#include <QObject>

class QAction;
class QMenu;
class QToolBar;

namespace Editor {

class MainWindow;
class MessageBar;

/// Opens, saves and publishes, with all questions and messages.
class FileActions : public QObject {
    Q_OBJECT

public:
    FileActions(MainWindow &window, MessageBar &messageBar);

    void fillMenu(QMenu *menu);
    void fillToolBar(QToolBar *toolBar);
    /// The actions that write the shown package.
    QList<QAction *> savingActions() const { return {m_save, m_saveAs, m_publish}; }

    /// Asks about unsaved changes; returns whether the package may be closed.
    bool settle();
    bool open(const QString &fileName);
    bool save();
    bool saveAs();
    void chooseAndOpen();
    /// Creates a package from a template.
    void newFrom(const QString &resource);

private:
    void reload();
    void showDiskState(Document::DiskState state);
    bool saveTo(const QString &fileName);
    bool mayOverwrite();
    /// Reports that a file could not be written, and offers another one.
    bool saveElsewhere(const QString &fileName);
    void showFailure(const QString &title, const QString &fileName);
    void fillRecentMenu();
    QString directory() const;

    MainWindow &m_window;
    Document &m_document;
    MessageBar &m_messageBar;
    QMenu *m_templates;
    QMenu *m_recent;
    QAction *m_open;
    QAction *m_save;
    QAction *m_saveAs;
    QAction *m_publish;
    QAction *m_reload;
    QAction *m_quit;
};

} // namespace Editor
