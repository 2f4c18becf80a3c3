#include "problems_panel.h"

#include "models/problems_model.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QStringBuilder>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace Editor {

using Zel::PackageModel::Fix;
using Zel::PackageModel::Issue;

ProblemsPanel::ProblemsPanel(Document &document, ProblemsModel *problems, QWidget *parent)
    : QWidget(parent)
    , m_document(document)
    , m_view(new QTreeView(this))
    , m_details(new QScrollArea(this))
    , m_explanation(new QLabel(this))
    , m_fixes(new QVBoxLayout) {
    m_view->setModel(problems);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAlternatingRowColors(true);
    m_view->setAllColumnsShowFocus(true);
    m_view->setAccessibleName(tr("Problems"));
    m_view->header()->setStretchLastSection(true);
    m_view->header()->resizeSection(ProblemsModel::Severity, 100);
    m_view->header()->resizeSection(ProblemsModel::Text, 400);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    // Activation is a double click or Return, or a single click where the platform has it so.
    const auto show = [this](const QModelIndex &index) {
        Q_EMIT fieldWanted(index.data(ProblemsModel::PathRole).toString());
    };
    connect(m_view, &QTreeView::activated, this, show);
    connect(m_view, &QTreeView::doubleClicked, this, show);
    connect(m_view, &QTreeView::customContextMenuRequested, this, &ProblemsPanel::showMenu);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &ProblemsPanel::refresh);
    connect(&document, &Document::issuesChanged, this, &ProblemsPanel::refresh,
            Qt::QueuedConnection); // after the model

    m_explanation->setWordWrap(true);
    m_explanation->setTextFormat(Qt::PlainText);
    m_explanation->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *content = new QWidget(m_details);
    auto *details = new QVBoxLayout(content);
    details->addLayout(m_fixes);
    details->addWidget(m_explanation);
    details->addStretch();
    m_details->setWidgetResizable(true);
    m_details->setFrameShape(QFrame::NoFrame);
    m_details->setFocusPolicy(Qt::NoFocus);
    m_details->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_details->setWidget(content);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_view, 2);
    layout->addWidget(m_details, 1);
    refresh();
}

const Issue *ProblemsPanel::current() const {
    const int row = m_view->currentIndex().row();
    return row >= 0 && row < m_document.issues().size() ? &m_document.issues().at(row) : nullptr;
}

void ProblemsPanel::refresh() {
    while (m_fixes->count() > 0) {
        const std::unique_ptr<QLayoutItem> item(m_fixes->takeAt(0));
        item->widget()->deleteLater();
    }
    const Issue *issue = current();
    m_details->setVisible(issue);
    if (!issue)
        return;
    const auto rules = Zel::PackageModel::rules();
    const auto rule = std::find_if(rules.begin(), rules.end(),
                                   [&](const auto &each) { return each.id == issue->id; });
    m_explanation->setText(rule->explanation % u' ' % rule->remedy);
    QWidget *previous = m_view;
    const QVector<Fix> fixes = m_document.fixes(*issue);
    for (int i = 0; i < fixes.size(); ++i) {
        const Fix &fix = fixes.at(i);
        auto *button = new QPushButton(QString(fix.title).replace(u'&', QStringLiteral("&&")));
        connect(button, &QPushButton::clicked, this,
                [this, fix] { m_document.edit(fix.edits, fix.title); });
        m_fixes->insertWidget(i, button, 0, Qt::AlignLeft);
        setTabOrder(previous, button);
        previous = button;
    }
}

void ProblemsPanel::fixAllSafe() {
    m_document.package()->syncRecord();
    Zel::PackageInfoModel scratch(m_document.package()->packageInfo());
    const QString fileName = m_document.fileName();
    const auto edits =
        Zel::PackageModel::fixIssues(&scratch, Zel::PackageModel::FixChoice::Safe,
                                     {fileName.isEmpty() ? QString() : QFileInfo(fileName).path()});
    if (!edits.isEmpty())
        m_document.edit(edits, tr("Fix all safe problems"));
}

void ProblemsPanel::addFixes(QMenu &menu) {
    const Issue *issue = current();
    for (const Fix &fix : issue ? m_document.fixes(*issue) : QVector<Fix>())
        menu.addAction(QString(fix.title).replace(u'&', QStringLiteral("&&")), this,
                       [this, fix] { m_document.edit(fix.edits, fix.title); });
}

void ProblemsPanel::showMenu(const QPoint &place) {
    const Issue *issue = current();
    if (!issue)
        return;
    QMenu menu;
    addFixes(menu);
    menu.addSeparator();
    menu.addAction(tr("&Copy"), this,
                   [text = issue->path % QStringLiteral(": ") % issue->plainText() %
                           QStringLiteral(" [") % issue->id %
                           u']'] { QGuiApplication::clipboard()->setText(text); });
    menu.addAction(tr("&Show the field"), this,
                   [this, path = issue->path] { Q_EMIT fieldWanted(path); });
    menu.exec(m_view->viewport()->mapToGlobal(place));
}

void ProblemsPanel::showBeside(int distance) {
    const auto count = int(m_document.issues().size());
    if (count == 0)
        return;
    const int row = m_view->currentIndex().isValid() ? m_view->currentIndex().row() + distance
                    : distance > 0                   ? 0
                                                     : count - 1;
    const QModelIndex index = m_view->model()->index((row + count) % count, 0);
    m_view->setCurrentIndex(index);
    Q_EMIT fieldWanted(index.data(ProblemsModel::PathRole).toString());
}

} // namespace Editor
