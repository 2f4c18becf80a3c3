#include "find_panel.h"

#include "models/matches_model.h"
#include "widgets/empty_hint.h"
#include "widgets/marks.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>

namespace Editor {

using Zel::PackageModel::FieldWalk;
using Zel::PackageModel::SearchOptions;
using Zel::PackageModel::TextMatches;

namespace {

constexpr int stepDuration = 15; // milliseconds

} // namespace

FindPanel::FindPanel(Document &document, QWidget *parent)
    : QWidget(parent)
    , m_document(document)
    , m_text(new QLineEdit(this))
    , m_replacement(new QLineEdit(this))
    , m_matchCase(newOption(tr("Match case")))
    , m_matchWords(newOption(tr("Whole words")))
    , m_isExpression(newOption(tr("Regular expression")))
    , m_replace(new QPushButton(tr("Replace"), this))
    , m_replaceAll(new QPushButton(tr("Replace All"), this))
    , m_summary(new QLabel(this))
    , m_view(new QTreeView(this))
    , m_found(new MatchesModel(this)) {
    for (QLineEdit *line : {m_text, m_replacement})
        line->setClearButtonEnabled(true);
    m_text->setPlaceholderText(tr("Text to find"));
    m_text->setAccessibleName(tr("Text to find"));
    m_replacement->setPlaceholderText(tr("Replace with"));
    m_replacement->setAccessibleName(tr("Replace with"));
    m_isExpression->setToolTip(tr("In the replacement, \\1 is the first captured text."));
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);

    m_view->setModel(m_found);
    m_view->setAccessibleName(tr("Matches"));
    explainWhenEmpty(m_view, tr("Matches in the texts and fields of the package appear here."));
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAlternatingRowColors(true);
    m_view->setAllColumnsShowFocus(true);
    m_view->header()->resizeSection(MatchesModel::Field, 260);
    m_view->setMinimumHeight(m_view->fontMetrics().lineSpacing() * 6);
    const auto show = [this](const QModelIndex &index) {
        Q_EMIT fieldWanted(index.data(MatchesModel::PathRole).toString());
    };
    connect(m_view, &QTreeView::activated, this, show);
    connect(m_view, &QTreeView::doubleClicked, this, show);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &FindPanel::refresh);

    auto *options = new QHBoxLayout;
    for (QCheckBox *option : {m_matchCase, m_matchWords, m_isExpression})
        options->addWidget(option);
    options->addStretch();
    auto *layout = new QGridLayout(this);
    layout->addWidget(m_text, 0, 0);
    layout->addLayout(options, 0, 1, 1, 3);
    layout->addWidget(m_replacement, 1, 0);
    layout->addWidget(m_replace, 1, 1);
    layout->addWidget(m_replaceAll, 1, 2);
    layout->addWidget(m_summary, 1, 3);
    layout->addWidget(m_view, 2, 0, 1, 4);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(3, 1);

    connect(m_text, &QLineEdit::textChanged, this, &FindPanel::startAnew);
    connect(m_text, &QLineEdit::returnPressed, this, &FindPanel::showNext);
    connect(m_replacement, &QLineEdit::returnPressed, m_replace, &QPushButton::click);
    connect(m_replace, &QPushButton::clicked, this, [this] {
        const int row = m_view->currentIndex().row();
        if (row >= 0)
            replace({m_found->matches().at(row)});
    });
    connect(m_replaceAll, &QPushButton::clicked, this, [this] { replace(m_found->matches()); });
    connect(&m_timer, &QTimer::timeout, this, &FindPanel::search);
    connect(&document, &Document::edited, this, &FindPanel::restart);
    connect(&document, &Document::packageReplaced, this, &FindPanel::restart);
    refresh();
}

FindPanel::~FindPanel() = default;

QCheckBox *FindPanel::newOption(const QString &text) {
    auto *option = new QCheckBox(text, this);
    connect(option, &QCheckBox::toggled, this, &FindPanel::startAnew);
    return option;
}

SearchOptions FindPanel::options() const {
    return {m_matchCase->isChecked(), m_matchWords->isChecked(), m_isExpression->isChecked()};
}

void FindPanel::start() {
    m_text->setFocus(Qt::ShortcutFocusReason);
    m_text->selectAll();
}

void FindPanel::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    restart();
}

void FindPanel::hideEvent(QHideEvent *event) {
    QWidget::hideEvent(event);
    m_timer.stop();
    m_walk.reset();
}

void FindPanel::startAnew() {
    m_note.clear();
    restart();
}

void FindPanel::restart() {
    m_row = std::max(m_row, m_view->currentIndex().row());
    m_found->clear();
    m_walk.reset();
    m_timer.stop();
    m_pattern = Zel::PackageModel::searchPattern(m_text->text(), options());
    markField(m_text, Mark::ofRefusal(m_pattern.isValid() ? QString() : m_pattern.errorString()));
    if (isVisible() && !m_text->text().isEmpty() && m_pattern.isValid()) {
        m_walk = std::make_unique<FieldWalk>(m_document.package());
        m_timer.start(0);
    }
    refresh();
}

void FindPanel::search() {
    QElapsedTimer time;
    time.start();
    TextMatches found;
    while (!m_walk->isAtEnd() && !time.hasExpired(stepDuration))
        found += Zel::PackageModel::matches(m_walk->next(), m_pattern);
    m_found->append(found);
    if (m_walk->isAtEnd()) {
        m_timer.stop();
        m_walk.reset();
    }
    if (m_row >= 0 && m_row < m_found->rowCount()) {
        m_view->setCurrentIndex(m_found->index(m_row, 0));
        m_row = -1;
    }
    refresh();
}

void FindPanel::refresh() {
    const int count = m_found->rowCount();
    m_replace->setEnabled(m_view->currentIndex().isValid());
    m_replaceAll->setEnabled(count > 0 && !isSearching());
    QStringList summary;
    if (!m_note.isEmpty())
        summary += m_note;
    if (!m_pattern.isValid())
        summary += m_pattern.errorString();
    else if (isSearching())
        summary += tr("Searching: %1 so far").arg(count);
    else if (!m_text->text().isEmpty())
        summary += count == 0 ? tr("Not found.") : tr("Matches: %1").arg(count);
    m_summary->setText(summary.join(u' '));
}

void FindPanel::showBeside(int distance) {
    const int count = m_found->rowCount();
    if (count == 0)
        return;
    const int current = m_view->currentIndex().row();
    const int row = current >= 0 ? current + distance : distance > 0 ? 0 : count - 1;
    const QModelIndex index = m_found->index((row + count) % count, 0);
    m_view->setCurrentIndex(index);
    Q_EMIT fieldWanted(index.data(MatchesModel::PathRole).toString());
}

void FindPanel::replace(const TextMatches &matches) {
    const auto replacement = Zel::PackageModel::replaced(m_document.package(), matches, m_pattern,
                                                         m_replacement->text(), options());
    m_row = m_view->currentIndex().row();
    m_note = tr("Replaced: %1.").arg(replacement.count);
    if (!replacement.fixed.isEmpty())
        m_note = tr("Replaced: %1, not possible: %2.")
                     .arg(replacement.count)
                     .arg(replacement.fixed.size());
    if (!replacement.edits.isEmpty())
        m_document.edit(replacement.edits,
                        tr("Replace “%1” with “%2”").arg(m_text->text(), m_replacement->text()));
    refresh();
}

} // namespace Editor
