#pragma once

#include <QToolButton>

namespace Editor {

class Document;

/// The package's icon: a click chooses another file, a picture that is dropped becomes the icon.
class IconButton : public QToolButton {
    Q_OBJECT

public:
    explicit IconButton(Document &document, QWidget *parent = nullptr);

    /// Makes the picture in a file the icon; says so when it holds none.
    void setIconFromFile(const QString &fileName);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void choose();
    void refresh();
    void setIconOf(const QPixmap &pixmap);

    Document &m_document;
};

} // namespace Editor
