#include "main_window.h"

#include "color_scheme.h"
#include "file_actions.h"
#include "find_panel.h"
#include "list_menu.h"
#include "page_stack.h"
#include "pages/page.h"
#include "problems_panel.h"
#include "undo_actions.h"
#include "widgets/icons.h"

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QToolBar>

namespace Editor {

void MainWindow::addMenus() {
    m_files->fillMenu(menuBar()->addMenu(tr("&File")));

    const QList<QAction *> undoing = newUndoActions(*m_document.undoStack(), this);
    QMenu *edit = menuBar()->addMenu(tr("&Edit"));
    edit->addActions(undoing);
    edit->addSeparator();
    addFindActions(edit);
    new ListMenu(edit);

    QMenu *problems = menuBar()->addMenu(tr("&Problems"));
    problems->addAction(tr("&Next Problem"), m_problemsPanel, &ProblemsPanel::showNext)
        ->setShortcut(Qt::Key_F8);
    problems->addAction(tr("&Previous Problem"), m_problemsPanel, &ProblemsPanel::showPrevious)
        ->setShortcut(Qt::SHIFT | Qt::Key_F8);
    problems->addSeparator();
    problems->addAction(tr("&Fix All Safe Problems"), m_problemsPanel, &ProblemsPanel::fixAllSafe);

    m_packageActions = m_files->savingActions();
    m_packageActions += problems->menuAction();

    addViewMenu();
    addHelpMenu();

    QToolBar *toolBar = addToolBar(tr("Tools"));
    toolBar->setObjectName(QStringLiteral("tools"));
    toolBar->setMovable(false);
    toolBar->setIconSize(QSize(22, 22));
    m_files->fillToolBar(toolBar);
    toolBar->addSeparator();
    toolBar->addActions(undoing);
}

void MainWindow::addFindActions(QMenu *menu) {
    auto *dock = findChild<QDockWidget *>(QStringLiteral("find"));
    const auto start = [this, dock] {
        leaveStartPage();
        if (dock->isHidden()) // done here, since otherwise its tab would appear first
            tabifyDockWidget(findChild<QDockWidget *>(QStringLiteral("problems")), dock);
        dock->show();
        dock->raise();
        m_findPanel->start();
    };
    menu->addAction(iconOf(Symbol::Find), tr("&Find…"), this, start)
        ->setShortcut(QKeySequence::Find);
    menu->addAction(tr("Find &Next"), m_findPanel, &FindPanel::showNext)
        ->setShortcut(QKeySequence::FindNext);
    menu->addAction(tr("Find Pre&vious"), m_findPanel, &FindPanel::showPrevious)
        ->setShortcut(QKeySequence::FindPrevious);
}

void MainWindow::addViewMenu() {
    QMenu *view = menuBar()->addMenu(tr("&View"));
    for (int i = 0; i < m_pages->pages().size(); ++i) {
        const Page *page = m_pages->pages().at(i);
        QAction *action =
            view->addAction(page->icon(), page->title(), this, [this, i] { showPage(i); });
        action->setShortcut(QKeySequence(QStringLiteral("Ctrl+%1").arg(i + 1)));
    }
    view->addSeparator();
    const auto docks = findChildren<QDockWidget *>();
    for (QDockWidget *dock : docks)
        view->addAction(dock->toggleViewAction());
    view->addSeparator();
    QAction *dark = view->addAction(tr("Dark &Colors"));
    dark->setCheckable(true);
    dark->setChecked(chosenColorScheme() == ColorScheme::Dark);
    connect(dark, &QAction::triggered, this, [](bool isDark) {
        chooseColorScheme(isDark ? ColorScheme::Dark : ColorScheme::Platform);
    });
}

void MainWindow::addHelpMenu() {
    QMenu *help = menuBar()->addMenu(tr("&Help"));
    help->addAction(iconOf(Symbol::Note), tr("&About"), this, [this] {
        QMessageBox::about(this, tr("About"),
                           tr("The properties editor shows and edits the manifest of an "
                              "application package for a robot.\n\nVersion %1")
                               .arg(QApplication::applicationVersion()));
    });
}

} // namespace Editor
