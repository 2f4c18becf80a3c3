#include "recovery_dialogs.h"

#include "document/change_list.h"
#include "widgets/message_bar.h"
#include "widgets/plain_text.h"

#include <QDir>
#include <QLocale>
#include <QPushButton>

#include <utility>

namespace Editor {

using Zel::PackageModel::Leftover;
using Zel::PackageModel::UnsavedEdits;

namespace {

constexpr int shownLines = 8;

QString nameOf(const UnsavedEdits &unsaved) {
    return unsaved.fileName.isEmpty() ? RecoveryDialogs::tr("a package that was never saved")
                                      : QDir::toNativeSeparators(unsaved.fileName);
}

QString timeOf(const UnsavedEdits &unsaved) {
    return QLocale().toString(unsaved.time.toLocalTime(), QLocale::ShortFormat);
}

QStringList iconLine(const UnsavedEdits &unsaved) {
    return unsaved.icon ? QStringList{RecoveryDialogs::tr("The icon")} : QStringList();
}

// The first changes, and the number of others.
QString summaryOf(QStringList lines) {
    const int left = int(lines.size()) - shownLines;
    if (left > 1) {
        lines = lines.mid(0, shownLines);
        lines += RecoveryDialogs::tr("… and %1 others").arg(left);
    }
    return lines.join(u'\n');
}

} // namespace

RecoveryDialogs::RecoveryDialogs(Document &document, Recovery &recovery, MessageBar &messageBar,
                                 QWidget *window)
    : QObject(window)
    , m_document(document)
    , m_recovery(recovery)
    , m_messageBar(messageBar)
    , m_window(window) {
    // Queued, so that the window shows the package first.
    connect(&recovery, &Recovery::noticed, this, &RecoveryDialogs::handleNotice,
            Qt::QueuedConnection);
    connect(&recovery, &Recovery::failed, this, [this](const QString &reason) {
        m_messageBar.showMessage(tr("Unsaved edits are not kept: %1").arg(reason), {},
                                 tr("Dismiss"));
    });
}

void RecoveryDialogs::handleNotice() {
    if (const auto owner = m_recovery.otherOwner())
        m_messageBar.showMessage(
            tr("Another window (process %1 on %2) has this file open. Whoever saves "
               "last may overwrite the edits of the other.")
                .arg(QString::number(owner->process), owner->host),
            {}, tr("Dismiss"));
    else if (std::exchange(m_isAccepted, false))
        restore();
    else if (m_recovery.leftover())
        offerLeftover();
}

void RecoveryDialogs::offerLeftover() {
    const UnsavedEdits &unsaved = *m_recovery.leftover();
    const ChangeList changes = changesOf(m_document.package(), unsaved.edits);
    if (changes.lines.isEmpty() && changes.error.isEmpty() && !unsaved.icon)
        return m_recovery.dismiss(); // the file has these changes already
    PlainMessageBox box(
        QMessageBox::Question, tr("Recovery"),
        tr("The editor ended before the edits of %1 were saved.").arg(timeOf(unsaved)),
        QMessageBox::NoButton, m_window);
    QString details = summaryOf(changes.lines + iconLine(unsaved));
    if (m_recovery.isFileChanged())
        details.prepend(tr("The file has changed since. The edits are made in the file as it is "
                           "now.") +
                        QStringLiteral("\n\n"));
    box.setInformativeText(details);
    auto *recover = box.addButton(tr("Recover"), QMessageBox::AcceptRole);
    auto *discard = box.addButton(tr("Discard"), QMessageBox::DestructiveRole);
    box.setDefaultButton(recover);
    box.setEscapeButton(recover); // loses nothing
    box.exec();
    if (box.clickedButton() == discard)
        m_recovery.dismiss();
    else
        restore();
}

void RecoveryDialogs::restore() {
    const QString error = m_recovery.restore();
    if (error.isEmpty())
        return;
    PlainMessageBox box(QMessageBox::Warning, tr("Recovery"),
                        tr("The edits cannot be made in the file as it is now. They are kept."),
                        QMessageBox::Ok, m_window);
    box.setInformativeText(error);
    box.exec();
}

void RecoveryDialogs::offerLeftovers() {
    const auto leftovers = m_recovery.leftovers();
    for (const Leftover &leftover : leftovers) {
        PlainMessageBox box(
            QMessageBox::Question, tr("Recovery"),
            tr("The editor ended before the edits of %1 were saved.").arg(timeOf(leftover.unsaved)),
            QMessageBox::NoButton, m_window);
        box.setInformativeText(
            tr("Edits: %1, in %2")
                .arg(leftover.unsaved.edits.size() + iconLine(leftover.unsaved).size())
                .arg(nameOf(leftover.unsaved)));
        auto *recover = box.addButton(tr("Recover"), QMessageBox::AcceptRole);
        auto *discard = box.addButton(tr("Discard"), QMessageBox::DestructiveRole);
        auto *later = box.addButton(tr("Later"), QMessageBox::RejectRole);
        box.setDefaultButton(recover);
        box.setEscapeButton(later);
        box.exec();
        if (box.clickedButton() == discard)
            m_recovery.dismiss(leftover);
        if (box.clickedButton() != recover)
            continue;
        m_isAccepted = true;
        const QString error = m_recovery.open(leftover);
        if (error.isEmpty())
            return;
        m_isAccepted = false;
        PlainMessageBox(QMessageBox::Critical, tr("Recovery"), error, QMessageBox::Ok, m_window)
            .exec();
    }
}

} // namespace Editor
