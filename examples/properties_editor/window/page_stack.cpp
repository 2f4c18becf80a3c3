#include "page_stack.h"

#include "pages/page.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QRegularExpression>
#include <QScrollArea>
#include <QStackedWidget>

#include <algorithm>

namespace Editor {
namespace {

constexpr int iconExtent = 22;

// "言語(&L)" or "&Languages"
QString withoutMnemonic(QString title) {
    return title.remove(QRegularExpression(QStringLiteral("\\(&.\\)|&")));
}

} // namespace

PageStack::PageStack(const QVector<Page *> &pages, QWidget *parent)
    : QWidget(parent)
    , m_pages(pages)
    , m_navigation(new QListWidget(this))
    , m_stack(new QStackedWidget(this)) {
    m_navigation->setAccessibleName(tr("Pages"));
    m_navigation->setFrameShape(QFrame::NoFrame);
    m_navigation->setIconSize(QSize(iconExtent, iconExtent));
    m_navigation->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (Page *page : pages)
        add(page);
    m_navigation->setFixedWidth(m_navigation->sizeHintForColumn(0) + 16);
    connect(m_navigation, &QListWidget::currentRowChanged, m_stack,
            &QStackedWidget::setCurrentIndex);
    m_navigation->setCurrentRow(0);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_navigation);
    layout->addWidget(m_stack, 1);
}

void PageStack::add(Page *page) {
    auto *scroll = new QScrollArea(m_stack);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(page);
    m_stack->addWidget(scroll);
    const QString title = withoutMnemonic(page->title());
    auto *item = new QListWidgetItem(page->icon(), title, m_navigation);
    item->setSizeHint(QSize(fontMetrics().horizontalAdvance(title) + 2 * iconExtent + 16,
                            std::max(iconExtent, fontMetrics().height()) + 14));
}

int PageStack::current() const {
    return m_navigation->currentRow();
}

void PageStack::show(int index) {
    m_navigation->setCurrentRow(index);
}

} // namespace Editor
