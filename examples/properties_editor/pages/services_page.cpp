#include "services_page.h"

#include "document/field_edits.h"
#include "models/entry_models.h"
#include "models/properties_model.h"
#include "widgets/empty_hint.h"
#include "widgets/icons.h"
#include "widgets/row_actions.h"
#include "widgets/typing_delegate.h"

#include <QHeaderView>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <initializer_list>

namespace Editor {

using Tano::FieldPath;

namespace {

QWidget *newTablePart(QTableView *table, std::initializer_list<QPushButton *> buttons) {
    auto *part = new QWidget(table->parentWidget());
    auto *row = new QHBoxLayout;
    for (QPushButton *button : buttons)
        row->addWidget(button);
    row->addStretch();
    auto *layout = new QVBoxLayout(part);
    layout->setContentsMargins({});
    layout->addWidget(table);
    layout->addLayout(row);
    return part;
}

} // namespace

ServicesPage::ServicesPage(Document &document, QWidget *parent)
    : Page(document, tr("&Services"), iconOf(Symbol::Services), parent)
    , m_model(new ServicesModel(document, this))
    , m_properties(new PropertiesModel(document, this))
    , m_table(new QTableView(this))
    , m_propertyTable(new QTableView(this)) {
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->addWidget(newServices(), 3);
    layout->addSpacing(12);
    layout->addWidget(newHeading(tr("Properties"), this));
    layout->addWidget(newProperties(), 2);

    const auto showService = [this] {
        if (!m_table->currentIndex().isValid() && m_model->rowCount() > 0)
            selectAlone(m_table, m_model->index(0, ServicesModel::Name));
        m_properties->setService(m_table->currentIndex().row());
    };
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this, showService);
    connect(m_model, &QAbstractItemModel::modelReset, this, showService);
    for (const QTableView *table : {m_table, m_propertyTable}) {
        connect(table->selectionModel(), &QItemSelectionModel::currentChanged, this,
                &ServicesPage::refresh);
        connect(table->model(), &QAbstractItemModel::modelReset, this, &ServicesPage::refresh);
    }
    connect(&document, &Document::edited, this, &ServicesPage::refresh);
    refresh();
}

QWidget *ServicesPage::newServices() {
    m_table->setModel(m_model);
    setUpTable(m_table, document(), tr("Services"));
    explainWhenEmpty(
        m_table,
        tr("A service is a program that runs in the background on the robot. “Add” adds one."));
    QHeaderView *header = m_table->horizontalHeader();
    header->setSectionResizeMode(ServicesModel::Name, QHeaderView::Interactive);
    header->resizeSection(ServicesModel::Name, 200);
    header->setSectionResizeMode(ServicesModel::ExecStart, QHeaderView::Stretch);
    header->setSectionResizeMode(ServicesModel::AutoRun, QHeaderView::ResizeToContents);

    auto *add = newListButton(tr("&Add"), true, this);
    m_remove = newListButton(tr("&Remove"), false, this);
    auto *rows =
        new RowActions(m_table, document(), {[] { return FieldPath().field("services"); }});
    connect(add, &QPushButton::clicked, this, &ServicesPage::add);
    connect(m_remove, &QPushButton::clicked, rows, &RowActions::remove);
    return newTablePart(m_table, {add, m_remove});
}

QWidget *ServicesPage::newProperties() {
    m_propertyTable->setModel(m_properties);
    setUpTable(m_propertyTable, document(), tr("Properties"));
    explainWhenEmpty(
        m_propertyTable,
        tr("Settings of the service that is selected above. “Add Property” adds one."));
    QHeaderView *header = m_propertyTable->horizontalHeader();
    header->resizeSection(PropertiesModel::Name, 200);
    header->setSectionResizeMode(PropertiesModel::Value, QHeaderView::Stretch);

    m_addProperty = newListButton(tr("Add Pr&operty"), true, this);
    m_removeProperty = newListButton(tr("Re&move Property"), false, this);
    connect(m_addProperty, &QPushButton::clicked, this, &ServicesPage::addProperty);
    const auto removal = [this](const QVector<int> &rows) { m_properties->remove(rows); };
    auto *rows = new RowActions(m_propertyTable, document(), {{}, false, removal, false});
    connect(m_removeProperty, &QPushButton::clicked, rows, &RowActions::remove);
    return newTablePart(m_propertyTable, {m_addProperty, m_removeProperty});
}

void ServicesPage::refresh() {
    m_remove->setEnabled(m_table->currentIndex().isValid());
    m_addProperty->setEnabled(m_properties->hasService());
    m_removeProperty->setEnabled(m_propertyTable->currentIndex().isValid());
}

void ServicesPage::addProperty() {
    const int row = int(m_properties->keys().indexOf(m_properties->add()));
    editAlone(m_propertyTable, m_properties->index(row, PropertiesModel::Name));
}

void ServicesPage::add() {
    const QString name = freeName(QStringLiteral("new-service"), [this](const QString &taken) {
        return package()->service(taken);
    });
    Tano::PackageService service;
    service.name = Zel::toUtf8(name);
    document().edit({appended(FieldPath().field("services"), service)});
    editAlone(m_table, m_model->index(m_model->rowCount() - 1, ServicesModel::Name));
}

bool ServicesPage::showField(const FieldPath &path) {
    if (fieldName(path) != QLatin1String("services"))
        return false;
    const int row = entryIndex(package()->services(), &Zel::ServiceInfoModel::name, path);
    if (row >= 0)
        selectAlone(m_table, m_model->index(row, m_model->columnOf(fieldName(path, 1))));
    const bool isProperty = fieldName(path, 1) == QLatin1String("properties");
    if (isProperty)
        selectAlone(m_propertyTable,
                    m_properties->index(int(m_properties->keys().indexOf(fieldKey(path, 1))),
                                        PropertiesModel::Value));
    (isProperty ? m_propertyTable : m_table)->setFocus(Qt::OtherFocusReason);
    return true;
}

} // namespace Editor
