#include "behaviors_page.h"

#include "behavior_details.h"
#include "behaviors_model.h"
#include "editor_commands.h"
#include "entry_models.h"
#include "marks.h"
#include "typing_delegate.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QTreeView>
#include <QVBoxLayout>

namespace Editor {

using Zel::BehaviorInfoModel;

BehaviorsPage::BehaviorsPage(Document &document, QWidget *parent)
    : Page(document, tr("&Behaviors"),
           platformIcon(QStringLiteral("system-run"), QStyle::SP_MediaPlay), parent)
    , m_model(new BehaviorsModel(document, this))
    , m_filtered(new QSortFilterProxyModel(this))
    , m_filter(new QLineEdit(this))
    , m_view(new QTreeView(this))
    , m_details(new BehaviorDetails(document, this)) {
    m_filtered->setSourceModel(m_model);
    m_filtered->setFilterKeyColumn(-1);
    m_filtered->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_filter->setPlaceholderText(tr("Find a behavior"));
    m_filter->setAccessibleName(tr("Find a behavior"));
    m_filter->setClearButtonEnabled(true);
    connect(m_filter, &QLineEdit::textChanged, m_filtered,
            &QSortFilterProxyModel::setFilterFixedString);

    m_view->setModel(m_filtered);
    setUpTable(m_view, document, tr("Behaviors"));
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true); // or every row would be measured
    m_view->header()->setMinimumSectionSize(40);
    m_view->header()->setSectionResizeMode(BehaviorsModel::Name, QHeaderView::Stretch);
    m_view->header()->resizeSection(BehaviorsModel::Path, 125);

    auto *add = newListButton(tr("&Add"), true, this);
    m_remove = newListButton(tr("&Remove"), false, this);
    connect(add, &QPushButton::clicked, this, &BehaviorsPage::add);
    connect(m_remove, &QPushButton::clicked, this, &BehaviorsPage::remove);
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
    splitter->addWidget(list);
    splitter->addWidget(m_details);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({255, 625});
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->addWidget(splitter);

    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &BehaviorsPage::showCurrent);
    connect(m_filtered, &QAbstractItemModel::modelReset, this, [this] {
        m_currentPath.clear();
        restoreCurrent();
    });
    connect(&document, &Document::edited, this, &BehaviorsPage::restoreCurrent);
    restoreCurrent();
}

int BehaviorsPage::currentRow() const {
    return m_filtered->mapToSource(m_view->currentIndex()).row();
}

void BehaviorsPage::showCurrent() {
    BehaviorInfoModel *behavior = m_model->behavior(currentRow());
    m_remove->setEnabled(behavior != nullptr);
    // While entries go and come again, another is current only in passing.
    if (behavior == m_current && behavior)
        return;
    m_current = behavior;
    m_details->setBehavior(behavior);
}

void BehaviorsPage::restoreCurrent() {
    const BehaviorInfoModel *wanted =
        m_currentPath.isEmpty() ? nullptr : package()->behavior(m_currentPath);
    if (m_current && m_current->path() != m_currentPath && !wanted)
        wanted = m_current; // it was renamed
    if (wanted && wanted != m_current)
        select(wanted);
    if (!m_view->currentIndex().isValid() && m_filtered->rowCount() > 0)
        m_view->setCurrentIndex(m_filtered->index(0, 0));
    showCurrent();
    m_currentPath = m_current ? m_current->path() : QString();
}

void BehaviorsPage::select(const BehaviorInfoModel *behavior) {
    const QModelIndex source = m_model->index(m_model->rowOf(behavior), BehaviorsModel::Path);
    if (!m_filtered->mapFromSource(source).isValid())
        m_filter->clear();
    const QModelIndex index = m_filtered->mapFromSource(source);
    m_view->setCurrentIndex(index);
    m_view->scrollTo(index);
    showCurrent();
    m_currentPath = behavior->path();
}

void BehaviorsPage::add() {
    const QString path = freeName(QStringLiteral("new-behavior"), [this](const QString &name) {
        return package()->behavior(name);
    });
    document().push(newAddBehaviorCommand(package(), path));
    select(package()->behavior(path));
}

void BehaviorsPage::remove() {
    const int row = currentRow();
    if (row >= 0)
        document().push(newRemoveBehaviorCommand(package(), row));
}

bool BehaviorsPage::showField(const FieldPlace &path) {
    if (path.list != QLatin1String("behaviors"))
        return false;
    if (const BehaviorInfoModel *behavior = package()->behavior(path.key)) {
        select(behavior);
        m_details->showSentences(path.subkey);
    }
    return true;
}

void BehaviorsPage::takePending() {
    m_details->takePending();
}

} // namespace Editor
