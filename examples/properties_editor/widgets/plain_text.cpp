#include "plain_text.h"

#include <QTextDocument>

namespace Editor {

QString toolTipOf(const QString &text) {
    return text.isEmpty() ? QString() : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
}

PlainMessageBox::PlainMessageBox(Icon icon, const QString &title, const QString &text,
                                 StandardButtons buttons, QWidget *parent)
    : QMessageBox(icon, title, QString(), buttons, parent) {
    setTextFormat(Qt::PlainText);
    setText(text);
}

// QMessageBox applies the text format to the main text only.
void PlainMessageBox::setInformativeText(const QString &text) {
    QMessageBox::setInformativeText(Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal));
}

} // namespace Editor
