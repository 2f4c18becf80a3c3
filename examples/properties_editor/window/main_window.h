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

    /// Opens a manifest, once unsaved changes are settled; says so when it cannot be read.
    bool openFile(const QString &fileName);
    /// Shows the field with a path as issues have it, and gives it the focus.
    void showField(const QString &path);
    void showPage(int index);
    /// Shows the start page until a package is opened or a page is chosen.
    void showStartPage();
    /// Brings the window to where it was when the program ended last.
    void restore();
    /// Keeps unsaved edits in a folder until they are saved, and locks the open file there.
    void keepEditsIn(const QString &folder);
    /// Null before keepEditsIn().
    Recovery *recovery() const { return m_recovery.get(); }
    /// Offers to open the packages whose edits another window left there.
    void offerLeftovers();

    /// Takes into the package what is being typed anywhere. Asks where a text is refused; returns
    /// false if the user prefers to fix it.
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
    QVector<QWidget *> m_hiddenDocks; // by the start page
    ProblemsModel *m_problems;
    ProblemsPanel *m_problemsPanel = nullptr;
    FindPanel *m_findPanel = nullptr;
    std::unique_ptr<Recovery> m_recovery;
    RecoveryDialogs *m_recoveryDialogs = nullptr;
};

} // namespace Editor
