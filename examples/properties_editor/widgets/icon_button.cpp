#include "icon_button.h"

#include "document/document.h"
#include "plain_text.h"

#include <packagemodel/set_command.h>

#include <QDir>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QImageReader>
#include <QMenu>
#include <QMimeData>
#include <QMimeDatabase>

namespace Editor {
namespace {

// The picture file in a drag, or empty.
QString pictureOf(const QMimeData *data) {
    const auto urls = data->urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile() && isPicture(url.toLocalFile()))
            return url.toLocalFile();
    }
    return {};
}

} // namespace

bool isPicture(const QString &fileName) {
    return QMimeDatabase().mimeTypeForFile(fileName).name().startsWith(QLatin1String("image/"));
}

IconButton::IconButton(Document &document, QWidget *parent)
    : QToolButton(parent)
    , m_document(document) {
    setIconSize(QSize(96, 96));
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Icon"));
    setToolTip(tr("Click to choose an icon, or drop a picture here."));
    setContextMenuPolicy(Qt::ActionsContextMenu);
    m_removal = new QAction(tr("Use the Default Icon"), this);
    connect(m_removal, &QAction::triggered, this, [this] { setIconOf(QPixmap()); });
    addAction(m_removal);
    connect(this, &QToolButton::clicked, this, &IconButton::choose);
    connect(&document, &Document::edited, this, &IconButton::refresh);
    connect(&document, &Document::fileNameChanged, this, &IconButton::refresh);
    refresh();
}

void IconButton::refresh() {
    const QIcon icon = m_document.package()->icon();
    setIcon(icon.isNull() ? Zel::PackageInfoModel::defaultIcon() : icon);
    m_removal->setEnabled(!icon.isNull());
    Q_EMIT refreshed();
}

QString IconButton::fileState() const {
    if (m_document.package()->icon().isNull())
        return tr("Robots show the default icon.");
    const QDir folder = QFileInfo(m_document.fileName()).absoluteDir();
    return !m_document.isIconEdited() && folder.exists(QStringLiteral("icon.png"))
               ? tr("The file icon.png is beside the manifest.")
               : tr("Saving writes the file icon.png beside the manifest.");
}

void IconButton::choose() {
    const QString directory = QFileInfo(m_document.fileName()).absolutePath();
    const QString fileName = QFileDialog::getOpenFileName(this, tr("Choose an Icon"), directory,
                                                          tr("Pictures (*.png *.jpg *.bmp *.svg)"));
    if (!fileName.isEmpty())
        setIconFromFile(fileName);
}

void IconButton::setIconFromFile(const QString &fileName) {
    QImageReader reader(fileName);
    reader.setAutoTransform(true);
    const QImage image = reader.read();
    if (image.isNull()) {
        PlainMessageBox(QMessageBox::Warning, tr("Choose an Icon"),
                        tr("The picture %1 cannot be read: %2").arg(fileName, reader.errorString()),
                        QMessageBox::Ok, this)
            .exec();
        return;
    }
    setIconOf(QPixmap::fromImage(image));
}

void IconButton::setIconOf(const QPixmap &pixmap) {
    const QIcon icon = pixmap.isNull() ? QIcon() : QIcon(pixmap);
    if (icon.isNull() && m_document.package()->icon().isNull())
        return;
    m_document.push(new Zel::PackageGenericValueCommand<QIcon>(m_document.package(), icon));
}

void IconButton::dragEnterEvent(QDragEnterEvent *event) {
    if (event->mimeData()->hasImage() || !pictureOf(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void IconButton::dropEvent(QDropEvent *event) {
    const QString fileName = pictureOf(event->mimeData());
    if (!fileName.isEmpty())
        setIconFromFile(fileName);
    else
        setIconOf(QPixmap::fromImage(qvariant_cast<QImage>(event->mimeData()->imageData())));
    event->acceptProposedAction();
}

} // namespace Editor
