#pragma once

#include "models/requirements_model.h"
#include "page.h"

class QTableView;
class QVBoxLayout;

namespace Editor {

/// The robots and middleware that the package requires.
class RequirementsPage : public Page {
    Q_OBJECT

public:
    explicit RequirementsPage(Document &document, QWidget *parent = nullptr);
    bool showField(const Tano::FieldPath &path) override;

private:
    struct Part {
        RequirementsModel *model;
        QTableView *table;
    };
    struct Texts {
        QString heading, hint, emptiness, addition, removal;
    };
    Part addPart(QVBoxLayout *layout, RequirementsModel::Kind kind, const Texts &texts);

    Part m_robot;
    Part m_brio;
};

} // namespace Editor
