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

    /// Shows and focuses a field; returns false if it is on another page.
    virtual bool showField(const Tano::FieldPath &path) { return focusTextField(path); }

protected:
    Page(Document &document, const QString &title, const QIcon &icon, QWidget *parent = nullptr);

    /// Focuses the text field on this page that shows the field.
    bool focusTextField(const Tano::FieldPath &path);

    Document &document() const { return m_document; }
    Zel::PackageInfoModel *package() const { return m_document.package(); }

private:
    Document &m_document;
    QString m_title;
    QIcon m_icon;
};

/// Adds a form row with the widget of a field and, below, its note.
void addFieldRow(QFormLayout *form, const QString &label, TextField *field);

/// Adds a form row with a line edit for a text of the package.
TextField *addTextRow(QFormLayout *form, const QString &label, Document &document,
                      TextBinding binding, const QString &placeholder = {});

/// A button beside a list, with an icon and a text for its action.
QPushButton *newListButton(const QString &text, bool isAddition, QWidget *parent);

/// Lets the Delete key click a button while the view, but no cell editor, has the focus.
void removeWithDelete(QAbstractItemView *view, QAbstractButton *removal);

/// Focuses a line and selects its text, so that typing replaces it.
void startTyping(QWidget *line);

/// A heading above a group of fields.
QWidget *newHeading(const QString &text, QWidget *parent);

} // namespace Editor
