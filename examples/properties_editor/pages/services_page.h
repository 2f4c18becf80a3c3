#pragma once

#include "page.h"

class QTableView;

namespace Editor {

class ServicesModel;

/// The services that the package starts.
class ServicesPage : public Page {
    Q_OBJECT

public:
    explicit ServicesPage(Document &document, QWidget *parent = nullptr);
    bool showField(const Tano::FieldPath &path) override;

private:
    void add();

    ServicesModel *m_model;
    QTableView *m_table;
};

} // namespace Editor
