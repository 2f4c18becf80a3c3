#pragma once

#include <QWidget>

namespace Editor {

/// A text that is typed into a widget, the parent, and that the package may be unable to take.
class TypedText : public QObject {
    Q_OBJECT

public:
    QWidget *widget() const { return m_widget; }

    /// Takes into the package what it can take.
    virtual void take() = 0;
    /// Why the package cannot take the text; empty when it can.
    virtual QString refusal() const = 0;
    /// Drops the text that is refused.
    virtual void discard() = 0;

protected:
    explicit TypedText(QWidget *widget)
        : QObject(widget)
        , m_widget(widget) {}

private:
    QWidget *m_widget;
};

} // namespace Editor
