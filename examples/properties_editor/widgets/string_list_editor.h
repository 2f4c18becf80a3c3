#pragma once

#include "models/string_list_model.h"

#include <QWidget>

class QLineEdit;
class QListView;
class QPushButton;

namespace Editor {

class AdditionLine;

/// Shows a list of texts, edits items in place, and adds texts that are typed in a line below.
class StringListEditor : public QWidget {
    Q_OBJECT

public:
    /// `list` returns the path of the list, or an empty path. Items of ordered lists can be moved.
    StringListEditor(Document &document, const QString &title, const QString &placeholder,
                     std::function<Tano::FieldPath()> list, bool isOrdered,
                     QWidget *parent = nullptr);

    /// Completions for the line.
    void setSuggestions(const QStringList &suggestions);
    /// Adds the text in the line before another list is shown.
    void leave();
    /// Shows another list after the path has changed.
    void reload();
    /// Focuses an item, or the line if there is no such item.
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
