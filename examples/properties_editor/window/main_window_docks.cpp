#include "main_window.h"

#include "find_panel.h"
#include "history_view.h"
#include "problem_count.h"
#include "problems_panel.h"

#include <QDockWidget>
#include <QStatusBar>
#include <QTreeView>

namespace Editor {

QDockWidget *MainWindow::addDock(const QString &title, const char *name, QWidget *content) {
    auto *dock = new QDockWidget(title, this);
    dock->setObjectName(QLatin1String(name));
    dock->setWidget(content);
    addDockWidget(Qt::BottomDockWidgetArea, dock);
    return dock;
}

void MainWindow::addDocks() {
    m_problemsPanel = new ProblemsPanel(m_document, m_problems, this);
    QDockWidget *problems = addDock(tr("Problems"), "problems", m_problemsPanel);
    connect(m_problemsPanel, &ProblemsPanel::fieldWanted, this,
            [this, problems](const QString &path) {
                if (!problems->isHidden())
                    problems->raise(); // above the dock that shares its place
                showField(path);
            });

    m_findPanel = new FindPanel(m_document, this);
    connect(m_findPanel, &FindPanel::fieldWanted, this, &MainWindow::showField);
    QDockWidget *find = addDock(tr("Find and Replace"), "find", m_findPanel);

    auto *history = new HistoryView(m_document.undoStack(), this);
    history->setEmptyLabel(tr("As opened"));
    history->setAccessibleName(tr("History"));
    QDockWidget *historyDock = addDock(tr("History"), "history", history);

    resizeDocks({problems, historyDock}, {820, 260}, Qt::Horizontal);
    resizeDocks({problems}, {190}, Qt::Vertical);
    find->hide();
}

void MainWindow::addStatus() {
    auto *count = new ProblemCount(m_document, this);
    connect(count, &QToolButton::clicked, this, [this] {
        auto *dock = findChild<QDockWidget *>(QStringLiteral("problems"));
        dock->show();
        dock->raise();
        m_problemsPanel->view()->setFocus();
    });
    statusBar()->addPermanentWidget(count);
}

} // namespace Editor
