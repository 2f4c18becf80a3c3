#pragma once

#include <QMessageBox>

namespace Editor {

// Qt guesses whether the text of a tool tip or message box is rich text. The values of packages and
// file names are plain text, whatever they look like.

/// The rich text that shows a plain text as a tool tip; empty for an empty text.
QString toolTipOf(const QString &text);

/// A message box whose texts are plain.
class PlainMessageBox : public QMessageBox {
    Q_OBJECT

public:
    PlainMessageBox(Icon icon, const QString &title, const QString &text, StandardButtons buttons,
                    QWidget *parent);

    void setInformativeText(const QString &text);
};

} // namespace Editor
