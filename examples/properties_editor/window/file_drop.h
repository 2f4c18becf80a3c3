#pragma once

#include <QObject>

class QWidget;

namespace Editor {

/// Opens manifests dropped anywhere in a window, even on fields that accept text. Pictures are left
/// to the widget below the pointer.
class FileDrop : public QObject {
    Q_OBJECT

public:
    explicit FileDrop(QWidget *window);
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void dropped(const QString &fileName);

private:
    QWidget *m_window;
};

} // namespace Editor
