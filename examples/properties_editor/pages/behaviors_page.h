#pragma once

#include "page.h"

class QLineEdit;
class QSortFilterProxyModel;
class QTreeView;

namespace Editor {

class BehaviorDetails;
class BehaviorsModel;

/// The list of behaviors, and the fields of the selected one.
class BehaviorsPage : public Page {
    Q_OBJECT

public:
    explicit BehaviorsPage(Document &document, QWidget *parent = nullptr);
    bool showField(const Tano::FieldPath &path) override;

private:
    void add();
    void select(const Zel::BehaviorInfoModel *behavior);
    void showCurrent();
    void selectFirst();
    int currentRow() const;

    BehaviorsModel *m_model;
    QSortFilterProxyModel *m_filtered;
    QLineEdit *m_filter;
    QTreeView *m_view;
    QPushButton *m_remove;
    BehaviorDetails *m_details;
};

} // namespace Editor
