#include "main_window.h"

#include "color_scheme.h"
#include "file_actions.h"
#include "models/problems_model.h"
#include "pages/behaviors_page.h"
#include "pages/dialogs_page.h"
#include "pages/identity_page.h"
#include "pages/requirements_page.h"
#include "pages/services_page.h"
#include "pages/texts_page.h"
#include "problems_panel.h"
#include "tab_order.h"
#include "widgets/icons.h"
#include "widgets/marks.h"
#include "widgets/message_bar.h"
#include "widgets/plain_text.h"
#include "widgets/typing_delegate.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QFileInfo>
#include <QHeaderView>
#include <QListWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>
#include <QUndoView>
#include <QVBoxLayout>

#include <algorithm>

namespace Editor {
namespace {

QString localFile(const QMimeData *data) {
    const auto urls = data->urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_messageBar(new MessageBar(this))
    , m_navigation(new QListWidget(this))
    , m_stack(new QStackedWidget(this))
    , m_problems(new ProblemsModel(m_document, this)) {
    m_files = new FileActions(*this, *m_messageBar);
    setAcceptDrops(true);
    addPages();
    addProblemsDock();
    addHistoryDock();
    addMenus();
    addStatus();
    resizeDocks(findChildren<QDockWidget *>(), {820, 260}, Qt::Horizontal);
    resizeDocks({findChild<QDockWidget *>(QStringLiteral("problems"))}, {150}, Qt::Vertical);
    resize(1100, 780);

    connect(m_document.undoStack(), &QUndoStack::cleanChanged, this,
            [this](bool isClean) { setWindowModified(!isClean); });
    connect(&m_document, &Document::fileNameChanged, this, &MainWindow::refreshTitle);
    connect(&m_document, &Document::editRefused, this, [this](const QString &reason) {
        PlainMessageBox(QMessageBox::Warning, tr("Edit"), reason, QMessageBox::Ok, this).exec();
    });
    setTabOrderOf(*this);
    refreshTitle();
}

MainWindow::~MainWindow() {
    // An open cell editor would still write through the model of its view.
    if (QWidget *focus = focusWidget())
        focus->clearFocus();
    m_document.closeRun();
    m_document.undoStack()->disconnect(this);
    // They look at the document until they are gone.
    while (auto *child = findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
        delete child;
}

void MainWindow::addPages() {
    m_pages = {new IdentityPage(m_document, this),     new TextsPage(m_document, this),
               new RequirementsPage(m_document, this), new BehaviorsPage(m_document, this),
               new DialogsPage(m_document, this),      new ServicesPage(m_document, this)};
    m_navigation->setAccessibleName(tr("Pages"));
    m_navigation->setFrameShape(QFrame::NoFrame);
    constexpr int iconExtent = 22;
    m_navigation->setIconSize(QSize(iconExtent, iconExtent));
    m_navigation->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (Page *page : std::as_const(m_pages)) {
        auto *scroll = new QScrollArea(m_stack);
        scroll->setWidgetResizable(true);
        scroll->setFrameShape(QFrame::NoFrame);
        scroll->setFocusPolicy(Qt::NoFocus);
        scroll->setWidget(page);
        m_stack->addWidget(scroll);
        QString title = page->title();
        title.remove(
            QRegularExpression(QStringLiteral("\\(&.\\)|&"))); // "言語(&L)" or "&Languages"
        auto *item = new QListWidgetItem(page->icon(), title, m_navigation);
        item->setSizeHint(QSize(fontMetrics().horizontalAdvance(title) + 2 * iconExtent + 16,
                                std::max(iconExtent, fontMetrics().height()) + 14));
    }
    m_navigation->setFixedWidth(m_navigation->sizeHintForColumn(0) + 16);
    connect(m_navigation, &QListWidget::currentRowChanged, m_stack,
            &QStackedWidget::setCurrentIndex);
    m_navigation->setCurrentRow(0);

    auto *content = new QWidget(this);
    auto *layout = new QHBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_navigation);
    layout->addWidget(m_stack, 1);
    auto *outer = new QVBoxLayout(content);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(0);
    outer->addWidget(m_messageBar);
    outer->addLayout(layout, 1);
    setCentralWidget(content);
}

void MainWindow::addProblemsDock() {
    m_problemsPanel = new ProblemsPanel(m_document, m_problems, this);
    connect(m_problemsPanel, &ProblemsPanel::fieldWanted, this, &MainWindow::showField);
    auto *dock = new QDockWidget(tr("Problems"), this);
    dock->setObjectName(QStringLiteral("problems"));
    dock->setWidget(m_problemsPanel);
    addDockWidget(Qt::BottomDockWidgetArea, dock);
}

void MainWindow::addHistoryDock() {
    auto *view = new QUndoView(m_document.undoStack(), this);
    view->setEmptyLabel(tr("As opened"));
    view->setAccessibleName(tr("History"));
    auto *dock = new QDockWidget(tr("History"), this);
    dock->setObjectName(QStringLiteral("history"));
    dock->setWidget(view);
    addDockWidget(Qt::BottomDockWidgetArea, dock);
}

void MainWindow::addMenus() {
    m_files->fillMenu(menuBar()->addMenu(tr("&File")));

    QUndoStack *stack = m_document.undoStack();
    QAction *undo = stack->createUndoAction(this, tr("&Undo"));
    undo->setShortcuts(QKeySequence::Undo);
    undo->setIcon(iconOf(Symbol::Undo));
    QAction *redo = stack->createRedoAction(this, tr("&Redo"));
    redo->setShortcuts(QKeySequence::Redo);
    redo->setIcon(iconOf(Symbol::Redo));
    for (QAction *action : {undo, redo}) {
        // Its own tool tip is the text of the command, in which a value may look like markup.
        const auto update = [action] { action->setToolTip(toolTipOf(action->iconText())); };
        connect(action, &QAction::changed, action, update);
        update();
    }
    QMenu *edit = menuBar()->addMenu(tr("&Edit"));
    edit->addActions({undo, redo});

    QMenu *problems = menuBar()->addMenu(tr("&Problems"));
    problems->addAction(tr("&Next Problem"), m_problemsPanel, &ProblemsPanel::showNext, Qt::Key_F8);
    problems->addAction(tr("&Previous Problem"), m_problemsPanel, &ProblemsPanel::showPrevious,
                        Qt::SHIFT | Qt::Key_F8);
    problems->addSeparator();
    problems->addAction(tr("&Fix All Safe Problems"), m_problemsPanel, &ProblemsPanel::fixAllSafe);

    QMenu *view = menuBar()->addMenu(tr("&View"));
    for (int i = 0; i < m_pages.size(); ++i) {
        QAction *action = view->addAction(m_pages.at(i)->icon(), m_pages.at(i)->title(), this,
                                          [this, i] { showPage(i); });
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

    QMenu *help = menuBar()->addMenu(tr("&Help"));
    help->addAction(iconOf(Symbol::Note), tr("&About"), this, [this] {
        QMessageBox::about(this, tr("About"),
                           tr("The properties editor shows and edits the manifest of an "
                              "application package for a robot.\n\nVersion %1")
                               .arg(QApplication::applicationVersion()));
    });

    QToolBar *toolBar = addToolBar(tr("Tools"));
    toolBar->setObjectName(QStringLiteral("tools"));
    toolBar->setMovable(false);
    toolBar->setIconSize(QSize(22, 22));
    m_files->fillToolBar(toolBar);
    toolBar->addSeparator();
    toolBar->addActions({undo, redo});
}

void MainWindow::addStatus() {
    m_problemCount = new QToolButton(this);
    m_problemCount->setAutoRaise(true);
    m_problemCount->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(m_problemCount, &QToolButton::clicked, this, [this] {
        auto *dock = findChild<QDockWidget *>(QStringLiteral("problems"));
        dock->show();
        dock->raise();
        m_problemsPanel->view()->setFocus();
    });
    statusBar()->addPermanentWidget(m_problemCount);
    connect(&m_document, &Document::edited, this, &MainWindow::refreshStatus);
    refreshStatus();
}

void MainWindow::refreshTitle() {
    const QString &fileName = m_document.fileName();
    setWindowFilePath(fileName);
    const QString shown = fileName.isEmpty()
                              ? tr("New package")
                              : QStringLiteral("%1/%2").arg(QFileInfo(fileName).dir().dirName(),
                                                            QFileInfo(fileName).fileName());
    setWindowTitle(tr("%1[*] – Package Properties").arg(shown));
    setWindowModified(m_document.isModified());
}

void MainWindow::refreshStatus() {
    using Zel::PackageModel::Severity;
    int errors = 0;
    int warnings = 0;
    for (const auto &issue : m_document.issues())
        ++(issue.severity == Severity::Error ? errors : warnings);
    if (errors + warnings == 0) {
        m_problemCount->setText(tr("No problems"));
        m_problemCount->setIcon(iconOf(Symbol::Check));
        return;
    }
    m_problemCount->setText(tr("Errors: %1, warnings: %2").arg(errors).arg(warnings));
    m_problemCount->setIcon(severityIcon(errors > 0 ? Severity::Error : Severity::Warning));
}

void MainWindow::showPage(int index) {
    m_navigation->setCurrentRow(index);
}

void MainWindow::showField(const QString &path) {
    const auto field = Tano::FieldPath::parse(Zel::toUtf8(path));
    for (int i = 0; field && i < m_pages.size(); ++i) {
        // It has to be on show to take the focus.
        const int previous = m_navigation->currentRow();
        m_navigation->setCurrentRow(i);
        if (m_pages.at(i)->showField(*field))
            return;
        m_navigation->setCurrentRow(previous);
    }
}

QWidget *MainWindow::openCellEditor() const {
    for (QWidget *widget = focusWidget(); widget; widget = widget->parentWidget()) {
        QWidget *viewport = widget->parentWidget();
        const auto *view =
            viewport ? qobject_cast<QAbstractItemView *>(viewport->parentWidget()) : nullptr;
        if (view && viewport == view->viewport() && qobject_cast<QLineEdit *>(widget))
            return widget;
    }
    return nullptr;
}

bool MainWindow::takeEdits() {
    if (auto *editor = qobject_cast<QLineEdit *>(openCellEditor())) {
        // What it could take, it has taken with each key.
        const QString refusal = TypingDelegate::refusal(editor);
        if (!refusal.isEmpty() && !askAboutRefusal(refusal, editor))
            return false;
    }
    for (Page *page : std::as_const(m_pages))
        page->takePending();
    m_document.closeRun();
    const auto fields = findChildren<TextField *>();
    for (const TextField *field : fields) {
        if (!field->refusal().isEmpty() && field->widget()->isEnabled() &&
            !askAboutRefusal(field->refusal(), field->widget()))
            return false;
    }
    return true;
}

bool MainWindow::askAboutRefusal(const QString &refusal, QWidget *field) {
    PlainMessageBox box(QMessageBox::Warning, tr("Save"), refusal, QMessageBox::NoButton, this);
    box.setInformativeText(tr("The package keeps what was there before."));
    box.addButton(tr("Go On Without It"), QMessageBox::AcceptRole);
    const QAbstractButton *mend = box.addButton(tr("Mend It"), QMessageBox::RejectRole);
    box.exec();
    if (box.clickedButton() != mend)
        return true;
    for (int i = 0; i < m_pages.size(); ++i) {
        if (m_pages.at(i)->isAncestorOf(field))
            m_navigation->setCurrentRow(i);
    }
    field->setFocus(Qt::OtherFocusReason);
    return false;
}

bool MainWindow::openFile(const QString &fileName) {
    return m_files->open(fileName);
}

void MainWindow::closeEvent(QCloseEvent *event) {
    event->setAccepted(m_files->settle());
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event) {
    if (!localFile(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent *event) {
    event->acceptProposedAction();
    openFile(localFile(event->mimeData()));
}

bool MainWindow::event(QEvent *event) {
    // A file on a network drive may change without notice.
    if (event->type() == QEvent::WindowActivate)
        m_document.checkDisk();
    return QMainWindow::event(event);
}

} // namespace Editor
