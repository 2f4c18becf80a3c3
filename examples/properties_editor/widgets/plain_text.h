#pragma once

#include <QMessageBox>

namespace Editor {

// Qt guesses whether a tool tip or message is rich text. Values of packages and file names are
// plain text, whatever they look like.

/// Rich text that shows a plain text as a tool tip; empty if it is empty.
QString toolTipOf(const QString &text);

/// A message box with plain texts.
class PlainMessageBox : public QMessageBox {
    Q_OBJECT

public:
    PlainMessageBox(Icon icon, const QString &title, const QString &text, StandardButtons buttons,
                    QWidget *parent);

    void setInformativeText(const QString &text);
};

} // namespace Editor
