#pragma once

#include "models/string_list_model.h"

#include <QWidget>

class QLineEdit;
class QListView;
class QPushButton;

namespace Editor {

/// Shows a list of texts, edits its items in place, and adds what is typed in the line below.
class StringListEditor : public QWidget {
    Q_OBJECT

public:
    StringListEditor(Document &document, const QString &title, const QString &placeholder,
                     QWidget *parent = nullptr);

    void setSource(const ListSource &source);
    /// Texts that the line for additions offers while one types.
    void setSuggestions(const QStringList &suggestions);
    /// Adds what is typed in the line, as its button does.
    void takePending();
    void focusAddition();
    QListView *view() const { return m_view; }

private:
    void refresh();

    StringListModel *m_model;
    QListView *m_view;
    QLineEdit *m_line;
    QPushButton *m_add;
    QPushButton *m_remove;
};

} // namespace Editor
