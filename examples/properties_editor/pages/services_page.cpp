#include "services_page.h"

#include "document/field_edits.h"
#include "models/entry_models.h"
#include "widgets/empty_hint.h"
#include "widgets/icons.h"
#include "widgets/row_actions.h"
#include "widgets/typing_delegate.h"

#include <QHeaderView>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace Editor {

using Tano::FieldPath;

ServicesPage::ServicesPage(Document &document, QWidget *parent)
    : Page(document, tr("&Services"), iconOf(Symbol::Services), parent)
    , m_model(new ServicesModel(document, this))
    , m_table(new QTableView(this)) {
    m_table->setModel(m_model);
    setUpTable(m_table, document, tr("Services"));
    explainWhenEmpty(
        m_table,
        tr("A service is a program that runs in the background on the robot. “Add” adds one."));
    QHeaderView *header = m_table->horizontalHeader();
    header->setSectionResizeMode(ServicesModel::Name, QHeaderView::Interactive);
    header->resizeSection(ServicesModel::Name, 200);
    header->setSectionResizeMode(ServicesModel::ExecStart, QHeaderView::Stretch);
    header->setSectionResizeMode(ServicesModel::AutoRun, QHeaderView::ResizeToContents);

    auto *add = newListButton(tr("&Add"), true, this);
    auto *remove = newListButton(tr("&Remove"), false, this);
    auto *rows = new RowActions(m_table, document, {[] { return FieldPath().field("services"); }});
    connect(add, &QPushButton::clicked, this, &ServicesPage::add);
    connect(remove, &QPushButton::clicked, rows, &RowActions::remove);
    const auto refresh = [this, remove] { remove->setEnabled(m_table->currentIndex().isValid()); };
    connect(m_table->selectionModel(), &QItemSelectionModel::currentChanged, remove, refresh);
    connect(&document, &Document::edited, remove, refresh);
    refresh();

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(add);
    buttons->addWidget(remove);
    buttons->addStretch();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->addWidget(m_table);
    layout->addLayout(buttons);
}

void ServicesPage::add() {
    const QString name = freeName(QStringLiteral("new-service"), [this](const QString &taken) {
        return package()->service(taken);
    });
    Tano::PackageService service;
    service.name = Zel::toUtf8(name);
    document().edit({appended(FieldPath().field("services"), service)});
    const QModelIndex cell = m_model->index(m_model->rowCount() - 1, ServicesModel::Name);
    m_table->setFocus();
    selectAlone(m_table, cell);
    m_table->edit(cell);
}

bool ServicesPage::showField(const FieldPath &path) {
    if (fieldName(path) != QLatin1String("services"))
        return false;
    m_table->setFocus(Qt::OtherFocusReason);
    const int row = entryIndex(package()->services(), &Zel::ServiceInfoModel::name, path);
    if (row >= 0)
        selectAlone(m_table, m_model->index(row, m_model->columnOf(fieldName(path, 1))));
    return true;
}

} // namespace Editor
