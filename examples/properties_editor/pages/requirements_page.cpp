#include "requirements_page.h"

#include "document/field_edits.h"
#include "widgets/empty_hint.h"
#include "widgets/hint_label.h"
#include "widgets/icons.h"
#include "widgets/marks.h"
#include "widgets/row_actions.h"
#include "widgets/typing_delegate.h"

#include <QHeaderView>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace Editor {

RequirementsPage::RequirementsPage(Document &document, QWidget *parent)
    : Page(document, tr("&Requirements"), iconOf(Symbol::Requirements), parent) {
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    m_robot = addPart(layout, RequirementsModel::Kind::Robot,
                      {tr("Robots"),
                       tr("The package is offered to robots that meet one of these. An empty "
                          "version is a bound that is not set."),
                       tr("Without a robot, the package is offered to none. “Add Robot” adds one."),
                       tr("Add &Robot"), tr("Re&move Robot")});
    layout->addSpacing(12);
    m_brio = addPart(layout, RequirementsModel::Kind::Brio,
                     {tr("Brio middleware"),
                      tr("The versions that the package was tried on; the lowest is needed."),
                      tr("The versions that the package runs on. “Add Brio Version” adds one."),
                      tr("Add &Brio Version"), tr("Rem&ove Brio Version")});
    layout->setStretchFactor(m_robot.table, 3);
    layout->setStretchFactor(m_brio.table, 2);
}

RequirementsPage::Part RequirementsPage::addPart(QVBoxLayout *layout, RequirementsModel::Kind kind,
                                                 const Texts &texts) {
    auto *model = new RequirementsModel(document(), kind, this);
    auto *table = new QTableView(this);
    table->setModel(model);
    setUpTable(table, document(), texts.heading);
    explainWhenEmpty(table, texts.emptiness);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    if (kind == RequirementsModel::Kind::Robot)
        table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    table->setMinimumHeight(table->verticalHeader()->defaultSectionSize() * 5 / 2);

    auto *hint = new HintLabel(texts.hint, this);
    hint->setWordWrap(true);
    auto *mark = new MarkLabel(
        document(), [model] { return model->list(); }, this);

    auto *add = newListButton(texts.addition, true, this);
    connect(add, &QPushButton::clicked, model, [model, table] {
        model->add();
        editAlone(table, model->index(model->rowCount() - 1, 0));
    });
    auto *remove = newListButton(texts.removal, false, this);
    auto *rows = new RowActions(table, document(), {[model] { return model->list(); }});
    connect(remove, &QPushButton::clicked, rows, &RowActions::remove);
    const auto refresh = [remove, table] { remove->setEnabled(table->currentIndex().isValid()); };
    connect(table->selectionModel(), &QItemSelectionModel::currentChanged, remove, refresh);
    connect(&document(), &Document::edited, remove, refresh);
    refresh();

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(add);
    buttons->addWidget(remove);
    buttons->addStretch();
    layout->addWidget(newHeading(texts.heading, this));
    layout->addWidget(hint);
    layout->addWidget(mark);
    layout->addWidget(table);
    layout->addLayout(buttons);
    return {model, table};
}

bool RequirementsPage::showField(const Tano::FieldPath &path) {
    for (const Part &part : {m_robot, m_brio}) {
        if (fieldName(path) != fieldName(part.model->list()))
            continue;
        part.table->setFocus(Qt::OtherFocusReason);
        selectAlone(part.table,
                    part.model->index(fieldKey(path).toInt(),
                                      std::max(0, part.model->columnOf(fieldName(path, 1)))));
        return true;
    }
    return false;
}

} // namespace Editor
