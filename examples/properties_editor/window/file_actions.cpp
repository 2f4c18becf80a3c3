#include "file_actions.h"

#include "main_window.h"
#include "pages/page.h"
#include "publishing.h"
#include "recent_files.h"
#include "reloading.h"
#include "templates.h"
#include "widgets/icons.h"
#include "widgets/message_bar.h"
#include "widgets/plain_text.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>

namespace Editor {
namespace {

QAction *newAction(QObject *parent, const QString &text, Symbol symbol,
                   const QKeySequence &shortcut) {
    auto *action = new QAction(iconOf(symbol), text, parent);
    action->setShortcut(shortcut);
    return action;
}

} // namespace

FileActions::FileActions(MainWindow &window, MessageBar &messageBar)
    : QObject(&window)
    , m_window(window)
    , m_document(window.document())
    , m_messageBar(messageBar)
    , m_templates(new QMenu(tr("&New"), &window))
    , m_recent(new QMenu(tr("Open &Recent"), &window))
    , m_open(newAction(this, tr("&Open…"), Symbol::Open, QKeySequence::Open))
    , m_save(newAction(this, tr("&Save"), Symbol::Save, QKeySequence::Save))
    , m_saveAs(newAction(this, tr("Save &As…"), Symbol::SaveAs,
                         QKeySequence(QStringLiteral("Ctrl+Shift+S"))))
    , m_publish(
          newAction(this, tr("&Publish…"), Symbol::Publish, QKeySequence(QStringLiteral("Ctrl+E"))))
    , m_reload(newAction(this, tr("Re&load"), Symbol::Reload, QKeySequence::Refresh))
    , m_quit(newAction(this, tr("&Quit"), Symbol::Quit, QKeySequence::Quit)) {
    m_templates->setIcon(iconOf(Symbol::New));
    const auto entries = templates();
    for (const Template &entry : entries) {
        QAction *action = m_templates->addAction(
            entry.name, this, [this, resource = entry.resource] { newFrom(resource); });
        if (m_templates->actions().size() == 1)
            action->setShortcut(QKeySequence::New);
    }
    m_recent->setIcon(iconOf(Symbol::Recent));
    connect(m_recent, &QMenu::aboutToShow, this, &FileActions::fillRecentMenu);
    connect(m_open, &QAction::triggered, this, &FileActions::chooseAndOpen);
    connect(m_save, &QAction::triggered, this, &FileActions::save);
    connect(m_saveAs, &QAction::triggered, this, &FileActions::saveAs);
    connect(m_publish, &QAction::triggered, this, [this] {
        if (m_window.takeEdits())
            publish(m_document, &m_window);
    });
    connect(m_reload, &QAction::triggered, this, &FileActions::reload);
    connect(m_quit, &QAction::triggered, &m_window, &QWidget::close);

    connect(&m_document, &Document::fileNameChanged, this, [this] {
        m_reload->setEnabled(!m_document.fileName().isEmpty());
        m_messageBar.hide();
    });
    m_reload->setEnabled(false);
    connect(&m_document, &Document::fileDiffers, this, &FileActions::showDiskState);
    connect(&m_messageBar, &MessageBar::accepted, this, [this] {
        if (m_document.checkDisk() == Document::DiskState::Vanished)
            save();
        else
            reload();
    });
}

void FileActions::fillMenu(QMenu *menu) {
    menu->addMenu(m_templates);
    menu->addAction(m_open);
    menu->addMenu(m_recent);
    menu->addSeparator();
    menu->addActions({m_save, m_saveAs, m_publish});
    menu->addSeparator();
    menu->addAction(m_reload);
    menu->addSeparator();
    menu->addAction(m_quit);
}

void FileActions::fillToolBar(QToolBar *toolBar) {
    auto *button = new QToolButton(toolBar);
    button->setMenu(m_templates);
    button->setIcon(m_templates->icon());
    button->setToolTip(tr("New package from a template"));
    button->setAccessibleName(button->toolTip());
    button->setFocusPolicy(Qt::NoFocus); // like the other tools
    button->setPopupMode(QToolButton::InstantPopup);
    toolBar->addWidget(button);
    toolBar->addActions({m_open, m_save});
}

QString FileActions::directory() const {
    return m_document.fileName().isEmpty() ? QString()
                                           : QFileInfo(m_document.fileName()).absolutePath();
}

bool FileActions::settle() {
    if (!m_window.takeEdits())
        return false;
    if (!m_document.isModified())
        return true;
    QMessageBox box(QMessageBox::Question, tr("Unsaved Changes"),
                    tr("The package has changes that are not saved."),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, &m_window);
    box.setInformativeText(tr("They are lost unless you save them."));
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
    case QMessageBox::Save:
        return save();
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

void FileActions::showFailure(const QString &title, const QString &fileName) {
    PlainMessageBox box(QMessageBox::Critical, title, m_document.errorString(), QMessageBox::Ok,
                        &m_window);
    box.setInformativeText(QDir::toNativeSeparators(fileName));
    box.exec();
}

bool FileActions::open(const QString &fileName) {
    if (!settle())
        return false;
    if (!m_document.open(fileName)) {
        showFailure(tr("Open"), fileName);
        return false;
    }
    rememberFile(m_document.fileName());
    return true;
}

void FileActions::chooseAndOpen() {
    const QString fileName = QFileDialog::getOpenFileName(
        &m_window, tr("Open a Manifest"), directory(), tr("Manifests (*.xml);;All files (*)"));
    if (!fileName.isEmpty())
        open(fileName);
}

void FileActions::newFrom(const QString &resource) {
    QFile file(resource);
    if (!settle() || !file.open(QIODevice::ReadOnly))
        return;
    if (!m_document.openTemplate(file.readAll())) {
        showFailure(tr("New"), resource);
        return;
    }
    m_window.showField(QStringLiteral("uid"));
    if (QWidget *uid = m_window.focusWidget())
        startTyping(uid); // each package needs its own
}

bool FileActions::save() {
    return m_document.fileName().isEmpty()
               ? saveAs()
               : m_window.takeEdits() && mayOverwrite() && saveTo(m_document.fileName());
}

bool FileActions::saveAs() {
    if (!m_window.takeEdits())
        return false;
    const QString proposal =
        m_document.fileName().isEmpty() ? QStringLiteral("manifest.xml") : m_document.fileName();
    const QString fileName = QFileDialog::getSaveFileName(
        &m_window, tr("Save the Manifest"), proposal, tr("Manifests (*.xml);;All files (*)"));
    return !fileName.isEmpty() && saveTo(fileName);
}

bool FileActions::mayOverwrite() {
    if (m_document.checkDisk() != Document::DiskState::Changed)
        return true;
    QMessageBox box(QMessageBox::Warning, tr("Save"),
                    tr("Another program has changed the file since it was opened."),
                    QMessageBox::Save | QMessageBox::Cancel, &m_window);
    box.setInformativeText(tr("Saving replaces what the other program has written."));
    box.setDefaultButton(QMessageBox::Cancel);
    return box.exec() == QMessageBox::Save;
}

bool FileActions::saveTo(const QString &fileName) {
    if (!m_document.save(fileName))
        return saveElsewhere(fileName);
    rememberFile(m_document.fileName());
    return true;
}

bool FileActions::saveElsewhere(const QString &fileName) {
    PlainMessageBox box(QMessageBox::Critical, tr("Save"), m_document.errorString(),
                        QMessageBox::Cancel, &m_window);
    box.setInformativeText(QDir::toNativeSeparators(fileName));
    const QPushButton *elsewhere = box.addButton(tr("Save &As…"), QMessageBox::AcceptRole);
    box.exec();
    return box.clickedButton() == elsewhere && saveAs();
}

void FileActions::reload() {
    if (m_window.takeEdits())
        Editor::reload(m_document, &m_window);
}

void FileActions::showDiskState(Document::DiskState state) {
    switch (state) {
    case Document::DiskState::Same:
        m_messageBar.hide();
        break;
    case Document::DiskState::Changed:
        m_messageBar.showMessage(tr("Another program has changed the file."), tr("Reload"),
                                 tr("Keep This Version"));
        break;
    case Document::DiskState::Vanished:
        m_messageBar.showMessage(tr("The file no longer exists."), tr("Save It Again"),
                                 tr("Dismiss"));
        break;
    }
}

void FileActions::fillRecentMenu() {
    m_recent->clear();
    const QStringList files = recentFiles();
    for (const QString &file : files) {
        QString shown = file;
        m_recent->addAction(shown.replace(u'&', QLatin1String("&&")), this,
                            [this, file] { open(file); });
    }
    if (files.isEmpty())
        m_recent->addAction(tr("No files yet"))->setEnabled(false);
}

} // namespace Editor
