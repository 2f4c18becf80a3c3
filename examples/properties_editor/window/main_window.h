#pragma once

#include "document/document.h"

#include <QMainWindow>
#include <QPointer>
#include <QVector>

#include <memory>

class QDockWidget;
class QMenu;
class QStackedWidget;

namespace Editor {

class FileActions;
class FindPanel;
class MessageBar;
class PageStack;
class ProblemsModel;
class ProblemsPanel;
class Recovery;
class RecoveryDialogs;
class StartPage;
class TypedText;

/// The window of the editor.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    Document &document() { return m_document; }

    /// Opens a manifest after asking about unsaved changes; reports errors.
    bool openFile(const QString &fileName);
    /// Shows and focuses the field at an issue's path.
    void showField(const QString &path);
    void showPage(int index);
    /// Shows the start page until a package is opened or a page is selected.
    void showStartPage();
    /// Restores the window's position from the last session.
    void restore();
    /// Stores unsaved edits in a folder until they are saved, and locks the open file.
    void keepEditsIn(const QString &folder);
    /// Null before keepEditsIn().
    Recovery *recovery() const { return m_recovery.get(); }
    /// Offers to open packages with unsaved edits from other sessions.
    void offerLeftovers();

    /// Applies typed text everywhere. If a text is refused, asks; returns false if the user wants
    /// to fix it.
    bool takeEdits();

protected:
    void closeEvent(QCloseEvent *event) override;
    bool event(QEvent *event) override;

private:
    void addPages();
    void addMenus();
    void addViewMenu();
    void addHelpMenu();
    void leaveStartPage();
    void enablePackageActions(bool isPackageShown);
    QDockWidget *addDock(const QString &title, const char *name, QWidget *content);
    void addDocks();
    void addFindActions(QMenu *menu);
    void addStatus();
    void refreshTitle();
    bool askAboutRefusal(const QPointer<TypedText> &text);
    void reveal(QWidget *field);
    void showChange(const QString &path);

    Document m_document;
    FileActions *m_files;
    MessageBar *m_messageBar;
    PageStack *m_pages;
    QStackedWidget *m_stack;
    StartPage *m_start;
    QVector<QWidget *> m_hiddenDocks;  // hidden by the start page
    QList<QAction *> m_packageActions; // of no use there
    ProblemsModel *m_problems;
    ProblemsPanel *m_problemsPanel = nullptr;
    FindPanel *m_findPanel = nullptr;
    std::unique_ptr<Recovery> m_recovery;
    RecoveryDialogs *m_recoveryDialogs = nullptr;
};

} // namespace Editor
