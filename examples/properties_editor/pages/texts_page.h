#pragma once

#include "page.h"

class QLabel;
class QTableView;

namespace Editor {

class LanguagesModel;

/// The table of languages, and the texts of the selected one.
class TextsPage : public Page {
    Q_OBJECT

public:
    explicit TextsPage(Document &document, QWidget *parent = nullptr);
    bool showField(const Tano::FieldPath &path) override;

private:
    void chooseLanguage();
    void addLanguage(const QString &code);
    void showCurrent();
    void refresh();
    Zel::RobotLanguage current() const;

    LanguagesModel *m_model;
    QTableView *m_table;
    QLabel *m_summary;
    QPushButton *m_remove;
    QWidget *m_details;
    QLabel *m_detailsTitle;
    TextField *m_name;
    TextField *m_description;
};

} // namespace Editor
