#include "start_page.h"

#include "pages/page.h"
#include "recent_files.h"
#include "templates.h"
#include "widgets/empty_hint.h"
#include "widgets/icons.h"

#include <QCommandLinkButton>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>

namespace Editor {
namespace {

constexpr int FileRole = Qt::UserRole;

QTreeWidgetItem *itemOf(const QString &fileName) {
    const QFileInfo info(fileName);
    auto *item = new QTreeWidgetItem(
        {info.dir().dirName() + u'/' + info.fileName(), QDir::toNativeSeparators(info.path())});
    item->setData(0, FileRole, fileName);
    if (!info.exists()) {
        item->setIcon(0, iconOf(Symbol::Warning));
        item->setText(1, StartPage::tr("%1 (the file is gone)").arg(item->text(1)));
        item->setFlags(item->flags() & ~Qt::ItemIsEnabled);
    } else {
        item->setIcon(0, iconOf(Symbol::Recent));
    }
    return item;
}

} // namespace

StartPage::StartPage(QWidget *parent)
    : QWidget(parent)
    , m_recent(new QTreeWidget(this)) {
    m_recent->setHeaderLabels({tr("Package"), tr("Folder")});
    m_recent->setAccessibleName(tr("Recent packages"));
    m_recent->setRootIsDecorated(false);
    m_recent->setUniformRowHeights(true);
    m_recent->setAlternatingRowColors(true);
    m_recent->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    explainWhenEmpty(m_recent, tr("The packages that you open appear here."));
    const auto open = [this](const QTreeWidgetItem *item) {
        Q_EMIT fileWanted(item->data(0, FileRole).toString());
    };
    connect(m_recent, &QTreeWidget::itemActivated, this, open);
    if (style()->styleHint(QStyle::SH_ItemView_ActivateItemOnSingleClick) == 0)
        connect(m_recent, &QTreeWidget::itemClicked, this, open);

    auto *recent = new QVBoxLayout;
    recent->addWidget(newHeading(tr("Recent packages"), this));
    recent->addWidget(m_recent, 1);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(40, 32, 40, 32);
    layout->setSpacing(32);
    layout->addWidget(newActions());
    layout->addLayout(recent, 1);
    refresh();
}

QWidget *StartPage::newActions() {
    auto *part = new QWidget(this);
    auto *layout = new QVBoxLayout(part);
    layout->setContentsMargins({});
    const auto add = [this, layout](const QString &text, Symbol symbol) {
        auto *button = new QCommandLinkButton(text, this);
        button->setIcon(iconOf(symbol));
        layout->addWidget(button);
        return button;
    };
    layout->addWidget(newHeading(tr("Open"), this));
    connect(add(tr("Open a Manifest…"), Symbol::Open), &QAbstractButton::clicked, this,
            &StartPage::openWanted);
    layout->addSpacing(16);
    layout->addWidget(newHeading(tr("New package"), this));
    for (const Template &entry : templates()) {
        connect(add(entry.name, Symbol::New), &QAbstractButton::clicked, this,
                [this, resource = entry.resource] { Q_EMIT templateWanted(resource); });
    }
    layout->addStretch();
    return part;
}

void StartPage::refresh() {
    m_recent->clear();
    const QStringList files = recentFiles();
    for (const QString &file : files)
        m_recent->addTopLevelItem(itemOf(file));
    m_recent->setCurrentItem(m_recent->topLevelItem(0));
}

} // namespace Editor
