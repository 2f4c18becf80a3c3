#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace Editor {

/// A line at the top of the window that shows a message and offers an answer, and is hidden
/// otherwise.
class MessageBar : public QFrame {
    Q_OBJECT

public:
    explicit MessageBar(QWidget *parent = nullptr);

    /// Shows `text`; without the text of an action there is only the button that dismisses it.
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
