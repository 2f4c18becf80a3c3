#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace Editor {

/// A bar at the top of the window that shows a message and offers an action; otherwise hidden.
class MessageBar : public QFrame {
    Q_OBJECT

public:
    explicit MessageBar(QWidget *parent = nullptr);

    /// Shows `text`; without an action text, only the button to dismiss it.
    void showMessage(const QString &text, const QString &action, const QString &dismissal);

protected:
    void changeEvent(QEvent *event) override;

Q_SIGNALS:
    void accepted();

private:
    void refreshColor();

    QLabel *m_text;
    QPushButton *m_action;
    QPushButton *m_dismissal;
};

} // namespace Editor
