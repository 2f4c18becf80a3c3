#include "review_page.h"

#include "document/change_list.h"
#include "models/table_model.h"
#include "widgets/icons.h"
#include "widgets/xml_view.h"

#include <packagemodel/text_conversion.h>

#include <QApplication>
#include <QLabel>
#include <QListView>
#include <QStringListModel>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace Editor {

using Tano::FieldPath;

namespace {

// Omits scripts, which the published copy keeps in private-use languages that nobody reads.
ChangeList withoutScripts(const ChangeList &changes) {
    ChangeList kept;
    for (int i = 0; i < changes.lines.size(); ++i) {
        const auto &steps = changes.paths.at(i).steps();
        const bool isScript = std::any_of(steps.begin(), steps.end(), [](const auto &step) {
            return !step.selectors.empty() && Zel::fromUtf8(step.selectors.front().text)
                                                  .endsWith(Zel::PackageModel::k_sa.text());
        });
        if (isScript)
            continue;
        kept.lines.append(changes.lines.at(i));
        kept.paths.append(changes.paths.at(i));
    }
    return kept;
}

} // namespace

ReviewPage::ReviewPage(Document &document, QWidget *parent)
    : Page(document, tr("Re&view"), iconOf(Symbol::Review), parent)
    , m_tabs(new QTabWidget(this))
    , m_xml(new XmlView(document, this)) {
    m_tabs->setDocumentMode(true);
    addChangesTab(m_changes, tr("Changes"), tr("What has changed since the package was saved:"));
    m_tabs->addTab(m_xml, tr("XML"));
    addChangesTab(m_publication, tr("Publication"),
                  tr("What publishing changes in the copy for users:"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->addWidget(m_tabs);

    m_timer.setSingleShot(true);
    m_timer.setInterval(200);
    connect(&m_timer, &QTimer::timeout, this, &ReviewPage::refresh);
    const auto schedule = [this] {
        if (isVisible())
            m_timer.start();
    };
    connect(m_tabs, &QTabWidget::currentChanged, this, &ReviewPage::refresh);
    connect(&document, &Document::edited, this, schedule);
    connect(document.undoStack(), &QUndoStack::cleanChanged, this, schedule);
    // A view that has the focus loses it while ~QWidget() deletes it, when the timer is gone.
    connect(qApp, &QApplication::focusChanged, &m_timer,
            [this](const QWidget *old) { noteFocus(old); });
}

void ReviewPage::addChangesTab(ChangesTab &tab, const QString &title, const QString &explanation) {
    auto *content = new QWidget(this);
    auto *label = new QLabel(explanation, content);
    label->setWordWrap(true);
    tab.view = new QListView(content);
    tab.lines = new QStringListModel(tab.view);
    tab.view->setModel(tab.lines);
    tab.view->setUniformItemSizes(true);
    tab.view->setAlternatingRowColors(true);
    tab.view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tab.view->setAccessibleName(title);
    label->setBuddy(tab.view);
    auto *layout = new QVBoxLayout(content);
    layout->addWidget(label);
    layout->addWidget(tab.view);
    m_tabs->addTab(content, title);
    connect(tab.view, &QListView::activated, this, [this, &tab](const QModelIndex &index) {
        if (index.row() < tab.paths.size())
            Q_EMIT fieldWanted(Zel::fromUtf8(tab.paths.at(index.row()).toString()));
    });
}

void ReviewPage::fill(ChangesTab &tab, const ChangeList &changes, const QString &emptyText) {
    tab.paths = changes.paths;
    tab.lines->setStringList(changes.lines.isEmpty() ? QStringList(emptyText) : changes.lines);
}

// Remembers the last field with the focus.
void ReviewPage::noteFocus(const QWidget *widget) {
    if (!widget || isAncestorOf(widget))
        return;
    FieldPath field;
    if (const auto *text = widget->findChild<TextField *>(QString(), Qt::FindDirectChildrenOnly))
        field = text->path();
    else if (const auto *view = qobject_cast<const QAbstractItemView *>(widget))
        if (const auto *model = qobject_cast<const TableModel *>(view->model()))
            field = model->field(view->currentIndex());
    if (!field.isEmpty())
        m_field = field;
}

bool ReviewPage::showField(const FieldPath &path) {
    m_field = path; // the focus is on another page
    return false;
}

void ReviewPage::showEvent(QShowEvent *event) {
    Page::showEvent(event);
    refresh();
}

void ReviewPage::refresh() {
    if (!isVisible())
        return;
    enum Tab { Changes, Xml };
    if (m_tabs->currentIndex() == Xml) {
        m_xml->showField(m_field);
    } else if (m_tabs->currentIndex() == Changes) {
        const Zel::PackageInfoModel saved(document().saved());
        fill(m_changes, changesBetween(saved, *package()), tr("Nothing has changed."));
    } else {
        fill(m_publication, withoutScripts(changesBetween(*package(), *document().published())),
             tr("Nothing: all texts are plain, in languages that the package has."));
    }
}

} // namespace Editor
