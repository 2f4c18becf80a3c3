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
    virtual bool showField(const Tano::FieldPath &path) = 0;

    /// Takes what is typed in a line whose text goes into the package with a button only.
    virtual void takePending() {}

protected:
    Page(Document &document, const QString &title, const QIcon &icon, QWidget *parent = nullptr);

    Document &document() const { return m_document; }
    Zel::PackageInfoModel *package() const { return m_document.package(); }

private:
    Document &m_document;
    QString m_title;
    QIcon m_icon;
};

/// Adds a row with a line edit, bound to a text of the package, to a form.
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
