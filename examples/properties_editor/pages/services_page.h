#pragma once

#include "page.h"

class QTableView;

namespace Editor {

class PropertiesModel;
class ServicesModel;

/// The services that the package starts, and the properties of the selected one.
class ServicesPage : public Page {
    Q_OBJECT

public:
    explicit ServicesPage(Document &document, QWidget *parent = nullptr);
    bool showField(const Tano::FieldPath &path) override;

private:
    QWidget *newServices();
    QWidget *newProperties();
    void add();
    void addProperty();
    void refresh();

    ServicesModel *m_model;
    PropertiesModel *m_properties;
    QTableView *m_table;
    QTableView *m_propertyTable;
    QPushButton *m_remove = nullptr;
    QPushButton *m_addProperty = nullptr;
    QPushButton *m_removeProperty = nullptr;
};

} // namespace Editor
