#pragma once

#include <QToolButton>

namespace Editor {

class Document;

/// Whether a file is an image, by its name and content.
bool isPicture(const QString &fileName);

/// The package's icon. A click chooses another file; a dropped picture becomes the icon.
class IconButton : public QToolButton {
    Q_OBJECT

public:
    explicit IconButton(Document &document, QWidget *parent = nullptr);

    /// Sets the icon from a file; reports an error if it is not a picture.
    void setIconFromFile(const QString &fileName);
    /// Asks for a file.
    void choose();
    /// Describes whether the icon has a file beside the manifest.
    QString fileState() const;

Q_SIGNALS:
    void refreshed();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void refresh();
    void setIconOf(const QPixmap &pixmap);

    Document &m_document;
    QAction *m_removal;
};

} // namespace Editor
