#include "problems_panel.h"

#include "document/problem_report.h"
#include "models/problem_filter.h"
#include "models/problems_model.h"
#include "problem_details.h"
#include "widgets/empty_hint.h"
#include "widgets/marks.h"

#include <packagemodel/ignore_comments.h>

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace Editor {

using Zel::PackageModel::Fix;
using Zel::PackageModel::Issue;
using Zel::PackageModel::Severity;

ProblemsPanel::ProblemsPanel(Document &document, ProblemsModel *problems, QWidget *parent)
    : QWidget(parent)
    , m_document(document)
    , m_problems(problems)
    , m_filter(new ProblemFilter(problems, this))
    , m_view(new QTreeView(this))
    , m_details(new ProblemDetails(this)) {
    auto *list = new QVBoxLayout;
    list->addLayout(newFilterLine());
    list->addWidget(m_view);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addLayout(list, 2);
    layout->addWidget(m_details, 1);
    setUpView();
    addActions();
    connect(m_details, &ProblemDetails::fixWanted, this, &ProblemsPanel::fix);
    connect(m_details, &ProblemDetails::ignoreWanted, this, &ProblemsPanel::ignoreSelected);
    connect(&document, &Document::issuesChanged, this, &ProblemsPanel::refresh,
            Qt::QueuedConnection); // after the model was updated
    refresh();
}

QBoxLayout *ProblemsPanel::newFilterLine() {
    auto *text = new QLineEdit(this);
    text->setPlaceholderText(tr("Filter problems"));
    text->setAccessibleName(tr("Filter problems"));
    text->setClearButtonEnabled(true);
    connect(text, &QLineEdit::textChanged, m_filter, &ProblemFilter::setText);
    auto *line = new QHBoxLayout;
    line->addWidget(text, 1);
    for (const auto &[severity, name] : {std::pair(Severity::Error, tr("Errors")),
                                         {Severity::Warning, tr("Warnings")},
                                         {Severity::Note, tr("Notes")}}) {
        auto *shown = new QToolButton(this);
        shown->setIcon(severityIcon(severity));
        shown->setToolTip(name);
        shown->setAccessibleName(name);
        shown->setFocusPolicy(Qt::StrongFocus);
        shown->setCheckable(true);
        shown->setChecked(true);
        connect(shown, &QToolButton::toggled, m_filter, [this, severity = severity](bool isShown) {
            m_filter->setShown(severity, isShown);
        });
        line->addWidget(shown);
    }
    return line;
}

void ProblemsPanel::setUpView() {
    m_view->setModel(m_filter);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAlternatingRowColors(true);
    m_view->setAllColumnsShowFocus(true);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setAccessibleName(tr("Problems"));
    m_emptiness = explainWhenEmpty(m_view);
    QHeaderView *header = m_view->header();
    header->setStretchLastSection(false);
    header->setSectionResizeMode(ProblemsModel::Text, QHeaderView::Stretch);
    header->resizeSection(ProblemsModel::Severity, 100);
    header->resizeSection(ProblemsModel::Field, 200);
    header->setSectionsClickable(true);
    header->setSortIndicatorShown(true);
    header->setSortIndicator(-1, Qt::AscendingOrder);
    connect(header, &QHeaderView::sortIndicatorChanged, this, &ProblemsPanel::sort);
    // Activation is a double click or Return or, on some platforms, a single click.
    const auto show = [this](const QModelIndex &index) {
        Q_EMIT fieldWanted(index.data(ProblemsModel::PathRole).toString());
    };
    connect(m_view, &QTreeView::activated, this, show);
    connect(m_view, &QTreeView::doubleClicked, this, show);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &ProblemsPanel::refresh);
}

void ProblemsPanel::addActions() {
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_view, &QTreeView::customContextMenuRequested, this, &ProblemsPanel::showMenu);
    const auto add = [this](const QString &text, void (ProblemsPanel::*act)()) {
        auto *action = new QAction(text, m_view);
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, this, act);
        m_view->addAction(action);
        return action;
    };
    add(tr("&Copy"), &ProblemsPanel::copySelected)->setShortcuts(QKeySequence::Copy);
    add(tr("&Ignore"), &ProblemsPanel::ignoreSelected);
}

// Another click on a column that is sorted in descending order restores the usual order.
void ProblemsPanel::sort(int column, Qt::SortOrder order) {
    const bool isThird = column >= 0 && column == std::exchange(m_sortedColumn, column) &&
                         m_sortOrder == Qt::DescendingOrder;
    m_sortOrder = order;
    if (isThird)
        m_view->header()->setSortIndicator(-1, Qt::AscendingOrder);
    else
        m_filter->sort(column, order);
}

const Issue *ProblemsPanel::issueOf(const QModelIndex &index) const {
    return m_problems->issueAt(m_filter->mapToSource(index).row());
}

QVector<Issue> ProblemsPanel::selected() const {
    QModelIndexList rows = m_view->selectionModel()->selectedRows();
    if (rows.isEmpty())
        rows.append(m_view->currentIndex());
    std::sort(rows.begin(), rows.end());
    QVector<Issue> issues;
    for (const QModelIndex &row : std::as_const(rows)) {
        if (const Issue *issue = issueOf(row))
            issues.append(*issue);
    }
    return issues;
}

void ProblemsPanel::refresh() {
    const Issue *issue = issueOf(m_view->currentIndex());
    m_details->show(issue, issue ? m_document.fixes(*issue) : QVector<Fix>(), m_view);
    m_emptiness->setText(m_document.issues().isEmpty()
                             ? tr("The package has no problems.")
                             : tr("The filter above hides all problems."));
}

// An edit elsewhere may have changed what the fix has to do.
void ProblemsPanel::fix(const QString &title) {
    const Issue *issue = issueOf(m_view->currentIndex());
    for (const Fix &fix : issue ? m_document.fixes(*issue) : QVector<Fix>()) {
        if (fix.title == title)
            return m_document.edit(fix.edits);
    }
}

void ProblemsPanel::fixAllSafe() {
    m_document.package()->syncRecord();
    Zel::PackageInfoModel scratch(m_document.package()->packageInfo());
    const auto edits = Zel::PackageModel::fixIssues(&scratch, Zel::PackageModel::FixChoice::Safe,
                                                    issueOptions(m_document.fileName()));
    if (!edits.isEmpty())
        m_document.edit(edits, tr("Fix all safe problems"));
}

void ProblemsPanel::ignoreSelected() {
    const auto issues = selected();
    m_document.package()->syncRecord();
    m_document.edit(Zel::PackageModel::ignoringEdits(m_document.package(), issues),
                    issues.size() == 1 ? tr("Ignore “%1”").arg(issues.first().id)
                                       : tr("Ignore %1 problems").arg(issues.size()));
}

void ProblemsPanel::copySelected() {
    const auto issues = selected();
    if (!issues.isEmpty())
        QGuiApplication::clipboard()->setText(reportLines(m_document, issues).join(u'\n'));
}

void ProblemsPanel::showMenu(const QPoint &place) {
    const Issue *issue = issueOf(m_view->currentIndex());
    if (!issue)
        return;
    QMenu menu;
    for (const Fix &each : m_document.fixes(*issue))
        menu.addAction(withoutMnemonics(each.title), this,
                       [this, title = each.title] { fix(title); });
    menu.addSeparator();
    menu.addActions(m_view->actions());
    menu.addAction(tr("&Show the field"), this,
                   [this, path = issue->path] { Q_EMIT fieldWanted(path); });
    menu.exec(m_view->viewport()->mapToGlobal(place));
}

void ProblemsPanel::showBeside(int distance) {
    const int count = m_filter->rowCount();
    if (count == 0)
        return;
    const int row = m_view->currentIndex().isValid() ? m_view->currentIndex().row() + distance
                    : distance > 0                   ? 0
                                                     : count - 1;
    const QModelIndex index = m_filter->index((row + count) % count, 0);
    m_view->setCurrentIndex(index);
    Q_EMIT fieldWanted(index.data(ProblemsModel::PathRole).toString());
}

} // namespace Editor
