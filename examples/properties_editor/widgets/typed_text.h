#pragma once

#include <QWidget>

namespace Editor {

/// A text typed into the parent widget, which the package may refuse.
class TypedText : public QObject {
    Q_OBJECT

public:
    QWidget *widget() const { return m_widget; }

    /// Applies the text to the package, if possible.
    virtual void take() = 0;
    /// The reason why the package refuses the text, else empty.
    virtual QString refusal() const = 0;
    /// Discards a refused text.
    virtual void discard() = 0;

protected:
    explicit TypedText(QWidget *widget)
        : QObject(widget)
        , m_widget(widget) {}

private:
    QWidget *m_widget;
};

} // namespace Editor
