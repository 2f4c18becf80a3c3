#pragma once

#include "page.h"

class QListView;
class QTableView;

namespace Editor {

class DialogsModel;
class TopicsModel;

/// The list of dialogs, and the fields of the selected one.
class DialogsPage : public Page {
    Q_OBJECT

public:
    explicit DialogsPage(Document &document, QWidget *parent = nullptr);
    bool showField(const Tano::FieldPath &path) override;

private:
    QWidget *newList();
    QWidget *newDetails();
    void add();
    void chooseTopic();
    void showCurrent();
    void refresh();
    Zel::DialogInfoModel *current() const;
    /// The path of a field of the dialog, empty if none is shown.
    Tano::FieldPath field(const char *name) const;

    DialogsModel *m_dialogs;
    TopicsModel *m_topics;
    QListView *m_list;
    QTableView *m_table;
    QPushButton *m_remove = nullptr;
    QPushButton *m_removeTopic = nullptr;
    QPushButton *m_chooseTopic = nullptr;
    QWidget *m_details = nullptr;
    TextField *m_name = nullptr;
    TextField *m_typeVersion = nullptr;
};

} // namespace Editor
