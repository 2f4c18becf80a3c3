#pragma once

#include "document/document.h"

#include <QMainWindow>
#include <QPointer>
#include <QVector>

class QListWidget;
class QStackedWidget;
class QToolButton;
class QTreeView;

namespace Editor {

class FileActions;
class MessageBar;
class Page;
class ProblemsModel;
class ProblemsPanel;
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

    /// Takes into the package what is being typed anywhere. Asks where a text is refused; returns
    /// false if the user prefers to fix it.
    bool takeEdits();

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    bool event(QEvent *event) override;

private:
    void addPages();
    void addMenus();
    void addProblemsDock();
    void addHistoryDock();
    void addStatus();
    void refreshTitle();
    void refreshStatus();
    bool askAboutRefusal(const QPointer<TypedText> &text);
    void reveal(QWidget *field);
    void showChange(const QString &path);

    Document m_document;
    FileActions *m_files;
    MessageBar *m_messageBar;
    QListWidget *m_navigation;
    QStackedWidget *m_stack;
    QVector<Page *> m_pages;
    ProblemsModel *m_problems;
    ProblemsPanel *m_problemsPanel = nullptr;
    QToolButton *m_problemCount = nullptr;
};

} // namespace Editor
