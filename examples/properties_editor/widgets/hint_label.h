#pragma once

#include <QLabel>

namespace Editor {

/// A line of explanation in a fainter color than other texts.
///
/// Derived from the text color, since palettes may lack a color for hints.
class HintLabel : public QLabel {
    Q_OBJECT

public:
    explicit HintLabel(const QString &text, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void refreshColor();
};

} // namespace Editor
