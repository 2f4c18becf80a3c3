#include "file_drop.h"

#include "widgets/icon_button.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace Editor {
namespace {

QString manifestOf(const QMimeData *data) {
    const auto urls = data->urls();
    const QString file = urls.size() == 1 ? urls.first().toLocalFile() : QString();
    return isPicture(file) ? QString() : file;
}

} // namespace

FileDrop::FileDrop(QWidget *window)
    : QObject(window)
    , m_window(window) {
    window->setAcceptDrops(true);
    qApp->installEventFilter(this);
}

bool FileDrop::eventFilter(QObject *watched, QEvent *event) {
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        break;
    default:
        return false;
    }
    const auto *widget = qobject_cast<QWidget *>(watched);
    if (!widget || widget->window() != m_window)
        return false;
    auto *drop = static_cast<QDropEvent *>(event);
    const QString file = manifestOf(drop->mimeData());
    if (file.isEmpty())
        return false;
    drop->acceptProposedAction();
    if (event->type() == QEvent::Drop)
        Q_EMIT dropped(file);
    return true;
}

} // namespace Editor
