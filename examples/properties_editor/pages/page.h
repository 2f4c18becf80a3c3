#pragma once

#include "document/document.h"
#include "widgets/text_field.h"

#include <QIcon>
#include <QWidget>

class QAbstractButton;
class QAbstractItemView;
class QFormLayout;
class QPushButton;

namespace Editor {

/// One page of the window.
class Page : public QWidget {
    Q_OBJECT

public:
    const QString &title() const { return m_title; }
    const QIcon &icon() const { return m_icon; }

    /// Shows the field with that path and gives it the focus; returns false when it is on another
    /// page.
    virtual bool showField(const Tano::FieldPath &path) { return focusTextField(path); }

protected:
    Page(Document &document, const QString &title, const QIcon &icon, QWidget *parent = nullptr);

    /// Gives the focus to the text field below this page that shows the field with that path.
    bool focusTextField(const Tano::FieldPath &path);

    Document &document() const { return m_document; }
    Zel::PackageInfoModel *package() const { return m_document.package(); }

private:
    Document &m_document;
    QString m_title;
    QIcon m_icon;
};

/// Adds a row to a form: the widget of a field, and below it the note.
void addFieldRow(QFormLayout *form, const QString &label, TextField *field);

/// Adds a row with a line edit, bound to a text of the package.
TextField *addTextRow(QFormLayout *form, const QString &label, Document &document,
                      TextBinding binding, const QString &placeholder = {});

/// A button of a list: an icon, and a text that says what it does.
QPushButton *newListButton(const QString &text, bool isAddition, QWidget *parent);

/// Lets the Delete key press a button in a list, but not in the editor of one of its cells.
void removeWithDelete(QAbstractItemView *view, QAbstractButton *removal);

/// Gives a line the focus with its text selected, so that typing replaces it.
void startTyping(QWidget *line);

/// A line of text above a group of fields.
QWidget *newHeading(const QString &text, QWidget *parent);

} // namespace Editor
