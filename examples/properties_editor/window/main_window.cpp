#include "main_window.h"

#include "file_actions.h"
#include "file_drop.h"
#include "find_panel.h"
#include "history_view.h"
#include "models/problems_model.h"
#include "page_stack.h"
#include "pages/behaviors_page.h"
#include "pages/dialogs_page.h"
#include "pages/identity_page.h"
#include "pages/requirements_page.h"
#include "pages/review_page.h"
#include "pages/services_page.h"
#include "pages/texts_page.h"
#include "pages/translation_page.h"
#include "problem_count.h"
#include "problems_panel.h"
#include "recovery_dialogs.h"
#include "start_page.h"
#include "tab_order.h"
#include "widgets/message_bar.h"
#include "widgets/plain_text.h"
#include "widgets/text_field.h"
#include "window_state.h"

#include <QAction>
#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QTreeView>
#include <QUndoView>
#include <QVBoxLayout>

#include <algorithm>

namespace Editor {

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_messageBar(new MessageBar(this))
    , m_stack(new QStackedWidget(this))
    , m_start(new StartPage(this))
    , m_problems(new ProblemsModel(m_document, this)) {
    m_files = new FileActions(*this, *m_messageBar);
    connect(new FileDrop(this), &FileDrop::dropped, this, &MainWindow::openFile);
    addPages();
    addDocks();
    addMenus();
    addStatus();
    resize(1100, 780);

    connect(m_document.undoStack(), &QUndoStack::cleanChanged, this, [this](bool isClean) {
        if (!isClean)
            leaveStartPage(); // a problem can be fixed in a dock beside it
        setWindowModified(!isClean);
    });
    connect(&m_document, &Document::fileNameChanged, this, &MainWindow::refreshTitle);
    // Queued, since what edits may be a cell, which would not survive all that happens meanwhile.
    connect(
        &m_document, &Document::editRefused, this,
        [this](const QString &reason) {
            PlainMessageBox(QMessageBox::Warning, tr("Edit"), reason, QMessageBox::Ok, this).exec();
        },
        Qt::QueuedConnection);
    setTabOrderOf(*this);
    connect(&m_document, &Document::fieldChanged, this, &MainWindow::showChange);
    refreshTitle();
}

MainWindow::~MainWindow() {
    // An open cell editor would still write to its view's model.
    if (QWidget *focus = focusWidget())
        focus->clearFocus();
    m_document.closeRun();
    m_document.undoStack()->disconnect(this);
    // They look at the document until they are gone. The other children belong to the layout.
    for (QDockWidget *dock : findChildren<QDockWidget *>(QString(), Qt::FindDirectChildrenOnly))
        delete dock;
    delete centralWidget();
    setStatusBar(nullptr);
}

void MainWindow::addPages() {
    auto *review = new ReviewPage(m_document, this);
    connect(review, &ReviewPage::fieldWanted, this, &MainWindow::showField);
    m_pages =
        new PageStack({new IdentityPage(m_document, this), new TextsPage(m_document, this),
                       new RequirementsPage(m_document, this), new BehaviorsPage(m_document, this),
                       new DialogsPage(m_document, this), new ServicesPage(m_document, this),
                       new TranslationPage(m_document, this), review},
                      this);
    m_stack->addWidget(m_pages);
    m_stack->addWidget(m_start);
    auto *content = new QWidget(this);
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_messageBar);
    layout->addWidget(m_stack, 1);
    setCentralWidget(content);

    connect(&m_document, &Document::packageReplaced, this, &MainWindow::leaveStartPage);
    connect(m_start, &StartPage::openWanted, m_files, &FileActions::chooseAndOpen);
    connect(m_start, &StartPage::templateWanted, m_files, &FileActions::newFrom);
    connect(m_start, &StartPage::fileWanted, this, [this](const QString &fileName) {
        if (!openFile(fileName))
            m_start->refresh();
    });
}

void MainWindow::showStartPage() {
    m_start->refresh();
    m_stack->setCurrentWidget(m_start);
    statusBar()->hide();
    const auto docks = findChildren<QDockWidget *>();
    for (QDockWidget *dock : docks) {
        if (!dock->isHidden())
            m_hiddenDocks.append(dock);
        dock->hide();
    }
    refreshTitle();
}

void MainWindow::leaveStartPage() {
    if (m_stack->currentWidget() != m_start)
        return;
    m_stack->setCurrentWidget(m_pages);
    statusBar()->show();
    for (QWidget *dock : std::as_const(m_hiddenDocks))
        dock->show();
    m_hiddenDocks.clear();
    refreshTitle();
}

QDockWidget *MainWindow::addDock(const QString &title, const char *name, QWidget *content) {
    auto *dock = new QDockWidget(title, this);
    dock->setObjectName(QLatin1String(name));
    dock->setWidget(content);
    addDockWidget(Qt::BottomDockWidgetArea, dock);
    return dock;
}

void MainWindow::addDocks() {
    m_problemsPanel = new ProblemsPanel(m_document, m_problems, this);
    connect(m_problemsPanel, &ProblemsPanel::fieldWanted, this, &MainWindow::showField);
    QDockWidget *problems = addDock(tr("Problems"), "problems", m_problemsPanel);

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

void MainWindow::refreshTitle() {
    const QString &fileName = m_document.fileName();
    setWindowFilePath(fileName);
    if (m_stack->currentWidget() == m_start) {
        setWindowTitle(tr("Package Properties"));
        return;
    }
    const QString shown = fileName.isEmpty()
                              ? tr("New package")
                              : QStringLiteral("%1/%2").arg(QFileInfo(fileName).dir().dirName(),
                                                            QFileInfo(fileName).fileName());
    setWindowTitle(tr("%1[*] – Package Properties").arg(shown));
    setWindowModified(m_document.isModified());
}

void MainWindow::showPage(int index) {
    leaveStartPage();
    m_pages->show(index);
}

void MainWindow::restore() {
    const int page = restoreWindowState(*this);
    if (page >= 0)
        m_pages->show(page);
}

void MainWindow::keepEditsIn(const QString &folder) {
    m_recovery = std::make_unique<Recovery>(m_document, folder);
    m_recoveryDialogs = new RecoveryDialogs(m_document, *m_recovery, *m_messageBar, this);
}

void MainWindow::offerLeftovers() {
    if (m_recoveryDialogs)
        m_recoveryDialogs->offerLeftovers();
}

void MainWindow::showField(const QString &path) {
    const auto field = Tano::FieldPath::parse(Zel::toUtf8(path));
    for (int i = 0; field && i < m_pages->pages().size(); ++i) {
        // Only visible widgets can take the focus.
        const int previous = m_pages->current();
        showPage(i);
        if (m_pages->pages().at(i)->showField(*field))
            return;
        m_pages->show(previous);
    }
}

bool MainWindow::takeEdits() {
    QVector<QPointer<TypedText>> texts;
    for (TypedText *text : findChildren<TypedText *>())
        texts.append(text);
    for (const auto &text : std::as_const(texts)) {
        // The editor of a cell may have been closed.
        if (!text || !text->widget()->isEnabled() || text->widget()->isHidden())
            continue;
        text->take();
        if (!text->refusal().isEmpty() && !askAboutRefusal(text))
            return false;
    }
    return true;
}

bool MainWindow::askAboutRefusal(const QPointer<TypedText> &text) {
    PlainMessageBox box(QMessageBox::Warning, tr("Save"), text->refusal(), QMessageBox::NoButton,
                        this);
    box.setInformativeText(tr("The package keeps what was there before."));
    box.addButton(tr("Go On Without It"), QMessageBox::AcceptRole);
    const QAbstractButton *fix = box.addButton(tr("Fix"), QMessageBox::RejectRole);
    box.exec();
    const bool goesOn = box.clickedButton() != fix;
    if (text && goesOn)
        text->discard();
    else if (text)
        reveal(text->widget());
    return goesOn;
}

void MainWindow::reveal(QWidget *field) {
    for (int i = 0; i < m_pages->pages().size(); ++i) {
        if (m_pages->pages().at(i)->isAncestorOf(field))
            showPage(i);
    }
    for (QWidget *page = field; page; page = page->parentWidget()) {
        auto *stack = qobject_cast<QStackedWidget *>(page->parentWidget());
        if (auto *tabs = stack ? qobject_cast<QTabWidget *>(stack->parentWidget()) : nullptr)
            tabs->setCurrentWidget(page);
    }
    field->setFocus(Qt::OtherFocusReason);
}

void MainWindow::showChange(const QString &path) {
    const QPointer<QWidget> focus = focusWidget();
    const auto *field = focus ? focus->findChild<TextField *>() : nullptr;
    if (field && Zel::fromUtf8(field->path().toString()) == path)
        return;
    showField(path);
    if (qobject_cast<QUndoView *>(focus))
        focus->setFocus(Qt::OtherFocusReason);
}

bool MainWindow::openFile(const QString &fileName) {
    return m_files->open(fileName);
}

void MainWindow::closeEvent(QCloseEvent *event) {
    event->setAccepted(m_files->settle());
    if (!event->isAccepted())
        return;
    leaveStartPage();
    saveWindowState(*this, m_pages->current());
}

bool MainWindow::event(QEvent *event) {
    // Changes on network drives may go unnoticed.
    if (event->type() == QEvent::WindowActivate)
        m_document.checkDisk();
    // The tab bar of docks is made when the first two become tabs.
    if (event->type() == QEvent::ChildPolished &&
        qobject_cast<QTabBar *>(static_cast<QChildEvent *>(event)->child()))
        setTabOrderOf(*this);
    return QMainWindow::event(event);
}

} // namespace Editor
