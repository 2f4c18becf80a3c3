#include "behaviors_page.h"

#include "behavior_details.h"
#include "document/field_edits.h"
#include "models/behaviors_model.h"
#include "widgets/empty_hint.h"
#include "widgets/icons.h"
#include "widgets/row_actions.h"
#include "widgets/typing_delegate.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QTreeView>
#include <QVBoxLayout>

namespace Editor {

using Tano::FieldPath;
using Zel::BehaviorInfoModel;

BehaviorsPage::BehaviorsPage(Document &document, QWidget *parent)
    : Page(document, tr("&Behaviors"), iconOf(Symbol::Behaviors), parent)
    , m_model(new BehaviorsModel(document, this))
    , m_filtered(new QSortFilterProxyModel(this))
    , m_filter(new QLineEdit(this))
    , m_view(new QTreeView(this))
    , m_details(new BehaviorDetails(document, this)) {
    m_filtered->setSourceModel(m_model);
    m_filtered->setFilterKeyColumn(-1);
    m_filtered->setDynamicSortFilter(false); // keeps a behavior visible while it is renamed
    m_filtered->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_filter->setPlaceholderText(tr("Find a behavior"));
    m_filter->setAccessibleName(tr("Find a behavior"));
    m_filter->setClearButtonEnabled(true);
    connect(m_filter, &QLineEdit::textChanged, m_filtered,
            &QSortFilterProxyModel::setFilterFixedString);

    m_view->setModel(m_filtered);
    setUpTable(m_view, document, tr("Behaviors"));
    explainWhenEmpty(m_view, tr("A behavior is something that the robot does. “Add” adds one; the "
                                "search above may hide some."));
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true); // avoids measuring every row
    m_view->header()->setMinimumSectionSize(40);
    m_view->header()->setSectionResizeMode(BehaviorsModel::Name, QHeaderView::Stretch);
    m_view->header()->resizeSection(BehaviorsModel::Path, 125);

    auto *add = newListButton(tr("&Add"), true, this);
    m_remove = newListButton(tr("&Remove"), false, this);
    connect(add, &QPushButton::clicked, this, &BehaviorsPage::add);
    auto *rows = new RowActions(m_view, document, {[] { return FieldPath().field("behaviors"); }});
    connect(m_remove, &QPushButton::clicked, rows, &RowActions::remove);
    connect(rows, &RowActions::hiddenRowsWanted, m_filter, &QLineEdit::clear);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(add);
    buttons->addWidget(m_remove);
    buttons->addStretch();

    auto *list = new QWidget(this);
    auto *listLayout = new QVBoxLayout(list);
    listLayout->setContentsMargins(0, 0, 0, 0);
    listLayout->addWidget(m_filter);
    listLayout->addWidget(m_view);
    listLayout->addLayout(buttons);

    auto *splitter = new QSplitter(this);
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(16);
    splitter->addWidget(list);
    splitter->addWidget(m_details);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({255, 625});
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->addWidget(splitter);

    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &BehaviorsPage::showCurrent);
    connect(m_filtered, &QAbstractItemModel::modelReset, this, &BehaviorsPage::selectFirst);
    connect(&document, &Document::edited, this, [this] {
        if (!m_view->currentIndex().isValid() && m_filtered->rowCount() > 0)
            selectFirst();
    });
    selectFirst();
}

int BehaviorsPage::currentRow() const {
    return m_filtered->mapToSource(m_view->currentIndex()).row();
}

void BehaviorsPage::showCurrent() {
    BehaviorInfoModel *behavior = m_model->behavior(currentRow());
    m_remove->setEnabled(behavior != nullptr);
    m_details->setBehavior(behavior);
}

void BehaviorsPage::selectFirst() {
    selectAlone(m_view, m_filtered->index(0, 0));
    showCurrent();
}

void BehaviorsPage::select(const BehaviorInfoModel *behavior) {
    const QModelIndex source = m_model->index(m_model->rowOf(behavior), BehaviorsModel::Path);
    if (!m_filtered->mapFromSource(source).isValid())
        m_filter->clear();
    const QModelIndex index = m_filtered->mapFromSource(source);
    selectAlone(m_view, index);
    m_view->scrollTo(index);
}

void BehaviorsPage::add() {
    const QString path = freeName(QStringLiteral("new-behavior"), [this](const QString &name) {
        return package()->behavior(name);
    });
    Tano::BehaviorInfo behavior;
    behavior.setPath(Zel::toUtf8(path));
    document().edit({appended(FieldPath().field("behaviors"), behavior)});
    select(package()->behavior(path));
    m_details->startTypingPath();
}

bool BehaviorsPage::showField(const FieldPath &path) {
    if (fieldName(path) != QLatin1String("behaviors"))
        return false;
    const auto behaviors = package()->behaviors();
    const int row = entryIndex(behaviors, &BehaviorInfoModel::path, path);
    if (row >= 0)
        select(behaviors.at(row));
    if (row < 0 || path.steps().size() == 1) {
        m_view->setFocus(Qt::OtherFocusReason);
    } else {
        m_details->showField(path);
        focusTextField(path);
    }
    return true;
}

} // namespace Editor
