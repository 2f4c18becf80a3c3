#pragma once

#include "models/string_list_model.h"

#include <QWidget>

class QLineEdit;
class QListView;
class QPushButton;

namespace Editor {

class AdditionLine;

/// Shows a list of texts, edits its items in place, and adds what is typed in the line below.
class StringListEditor : public QWidget {
    Q_OBJECT

public:
    /// `list` returns the path of the list; the empty path for none. Items of an ordered list can
    /// be moved.
    StringListEditor(Document &document, const QString &title, const QString &placeholder,
                     std::function<Tano::FieldPath()> list, bool isOrdered,
                     QWidget *parent = nullptr);

    /// Texts that the line for additions offers while one types.
    void setSuggestions(const QStringList &suggestions);
    /// Takes what is typed in the line into the list, which is about to be another one.
    void leave();
    /// Shows the list whose path has changed.
    void reload();
    /// Gives the focus to an item; to the line for additions where there is no such item.
    void showItem(int row);
    QListView *view() const { return m_view; }

private:
    void refresh();

    StringListModel *m_model;
    QListView *m_view;
    QLineEdit *m_line;
    AdditionLine *m_addition;
    QPushButton *m_add;
    QPushButton *m_remove;
};

} // namespace Editor
