#include "translation_page.h"

#include "document/field_edits.h"
#include "language_pair_chooser.h"
#include "models/translation_model.h"
#include "translation_exchange.h"
#include "widgets/empty_hint.h"
#include "widgets/icons.h"
#include "widgets/text_pair.h"
#include "widgets/translation_delegate.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

#include <utility>

namespace Editor {

using Tano::FieldPath;
using Zel::PackageModel::TextState;

namespace {

// The reason why a text has no place in its list yet, else empty.
QString gapRefusal(const Zel::PackageInfoModel *package, const FieldPath &path) {
    const bool isItem = !path.isEmpty() && path.steps().back().selectors.size() > 1;
    if (!isItem || itemIndex(path) <= Zel::PackageModel::entries(package, path.parent()).size())
        return {};
    return TranslationPage::tr("Translate the item before this one first: a list has no gaps.");
}

} // namespace

TranslationPage::TranslationPage(Document &document, QWidget *parent)
    : Page(document, tr("&Translation"), iconOf(Symbol::Translation), parent)
    , m_model(new TranslationModel(document, this))
    , m_languages(new LanguagePairChooser(this))
    , m_filter(new QComboBox(this))
    , m_search(new QLineEdit(this))
    , m_view(new QTableView(this))
    , m_pair(new TextPair(document, bindingOf([this] { return m_view->currentIndex(); }), this))
    , m_summary(new QLabel(this)) {
    auto *splitter = new QSplitter(Qt::Vertical, this);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(newList());
    splitter->addWidget(m_pair);
    splitter->setStretchFactor(0, 1);
    splitter->setSizes({360, 120});
    for (const auto &[key, distance] : {std::pair<QKeySequence, int>{Qt::CTRL | Qt::Key_Return, 1},
                                        {Qt::CTRL | Qt::Key_Enter, 1},
                                        {Qt::ALT | Qt::Key_Down, 1},
                                        {Qt::ALT | Qt::Key_Up, -1}}) {
        auto *shortcut = new QShortcut(key, splitter);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, [this, way = distance] { goTo(way); });
    }
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->addWidget(newChoosers());
    layout->addWidget(splitter, 1);
    m_summary->setTextFormat(Qt::PlainText);
    layout->addWidget(m_summary);
    layout->addWidget(newButtons());
    connectModel();
    refresh();
}

QWidget *TranslationPage::newChoosers() {
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *label = new QLabel(tr("Sho&w:"), row);
    label->setBuddy(m_filter);
    layout->addWidget(m_languages, 3);
    layout->addWidget(label);
    layout->addWidget(m_filter, 1);
    m_filter->setAccessibleName(tr("Texts to show"));
    m_filter->addItem(tr("All texts"));
    for (const TextState state : {TextState::Missing, TextState::SameAsSource,
                                  TextState::SourceChanged, TextState::Malformed})
        m_filter->addItem(stateWords(state), int(state));
    m_search->setPlaceholderText(tr("Find a text"));
    m_search->setAccessibleName(tr("Find a text"));
    m_search->setClearButtonEnabled(true);
    layout->addWidget(m_search, 1);
    connect(m_languages, &LanguagePairChooser::chosen, this, &TranslationPage::showLanguages);
    connect(m_filter, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &TranslationPage::applyFilter);
    connect(m_search, &QLineEdit::textChanged, this, &TranslationPage::applyFilter);
    return row;
}

QWidget *TranslationPage::newList() {
    m_view->setModel(m_model);
    setUpTable(m_view, document(), tr("Texts"));
    const auto bind = [this](const QModelIndex &index) {
        return bindingOf([cell = QPersistentModelIndex(index)] { return QModelIndex(cell); });
    };
    m_view->setItemDelegate(new TranslationDelegate(document(), bind, m_view));
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setMinimumHeight(m_view->fontMetrics().height() * 5);
    m_view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    QHeaderView *header = m_view->horizontalHeader();
    for (const TextColumn column : {TextColumn::Source, TextColumn::Target})
        header->setSectionResizeMode(int(column), QHeaderView::Stretch);
    header->resizeSection(int(TextColumn::Field), 190);
    header->resizeSection(int(TextColumn::State), 120);
    explainWhenEmpty(m_view, tr("No text is shown. A package needs two languages for translating; "
                                "the page Languages adds them."));
    return m_view;
}

QPushButton *TranslationPage::newButton(const QString &text, const QString &toolTip,
                                        const std::function<void()> &action) {
    auto *button = new QPushButton(text, this);
    button->setAutoDefault(false);
    button->setToolTip(toolTip);
    connect(button, &QPushButton::clicked, this, action);
    return button;
}

QWidget *TranslationPage::newButtons() {
    m_rowButtons = {newButton(tr("Previo&us Missing"), tr("Alt+Up"), [this] { goTo(-1); }),
                    newButton(tr("&Next Missing"), tr("Alt+Down, or Ctrl+Return while typing"),
                              [this] { goTo(1); }),
                    newButton(tr("&Copy Source"), tr("Copies the source text into the translation"),
                              [this] { copySource(); })};
    m_listButtons = {
        newButton(tr("Fill &All Missing"),
                  tr("Copies the source text to where the translation is missing"),
                  [this] {
                      m_note = fillMissingTexts(document(), m_languages->languages());
                      refresh();
                  }),
        newButton(tr("E&xport XLIFF…"), tr("Writes the texts for translation tools"),
                  [this] { exportTexts(this, document(), m_languages->languages()); })};
    auto *import = newButton(tr("&Import XLIFF…"), tr("Reads texts from translation tools"),
                             [this] { importTexts(this, document()); });
    auto *part = new QWidget(this);
    auto *layout = new QHBoxLayout(part);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto all = m_rowButtons + m_listButtons;
    for (QPushButton *button : all)
        layout->addWidget(button);
    layout->addWidget(import);
    layout->addStretch();
    return part;
}

void TranslationPage::connectModel() {
    connect(m_model, &TranslationModel::updated, this, &TranslationPage::refresh);
    connect(m_model, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
        if (const FieldPath path = m_model->field(m_view->currentIndex()); !path.isEmpty())
            m_wanted = path;
        m_wanted = inLanguage(m_wanted, m_languages->languages().language);
    });
    connect(m_model, &QAbstractItemModel::modelReset, this, &TranslationPage::showCurrent);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &TranslationPage::showCurrent);
    connect(m_view, &QTableView::activated, this, [this] { m_pair->target()->setFocus(); });
    connect(&document(), &Document::edited, this, &TranslationPage::followDocument);
    connect(&document(), &Document::fieldChanged, this, &TranslationPage::showChange);
}

TextBinding TranslationPage::bindingOf(const std::function<QModelIndex()> &index) const {
    return {
        [this, index] { return m_model->field(index()); },
        [this, index](const QString &) { return gapRefusal(package(), m_model->field(index())); }};
}

void TranslationPage::showEvent(QShowEvent *event) {
    Page::showEvent(event);
    m_model->setActive(true);
    followDocument();
}

void TranslationPage::hideEvent(QHideEvent *event) {
    Page::hideEvent(event);
    m_model->setActive(false);
}

void TranslationPage::followDocument() {
    if (!isVisible())
        return;
    QStringList codes;
    for (const auto &language : document().languages())
        codes.append(language.isoCode());
    m_languages->offer(codes);
    for (QPushButton *button : std::as_const(m_listButtons))
        button->setEnabled(codes.size() > 1);
    m_model->setLanguages(m_languages->languages());
}

void TranslationPage::showLanguages() {
    m_note.clear();
    m_model->setLanguages(m_languages->languages());
}

void TranslationPage::applyFilter() {
    m_note.clear();
    TextFilter filter;
    if (const QVariant state = m_filter->currentData(); state.isValid())
        filter.state = TextState(state.toInt());
    filter.search = m_search->text();
    m_model->setFilter(filter);
}

// After a reset, restores the current row once it is added.
void TranslationPage::restoreCurrent() {
    if (m_view->currentIndex().isValid() || m_model->rowCount() == 0)
        return;
    QModelIndex index = m_model->indexOf(m_wanted);
    if (!index.isValid() && (m_wanted.isEmpty() || !m_model->isLoading()))
        index = m_model->index(1, int(TextColumn::Target)); // below the first heading
    if (!index.isValid())
        return;
    m_wanted = {};
    m_view->setCurrentIndex(index);
    m_view->scrollTo(index, QAbstractItemView::PositionAtCenter);
}

void TranslationPage::showCurrent() {
    const auto text = m_model->text(m_view->currentIndex());
    m_pair->show(text);
    for (QPushButton *button : std::as_const(m_rowButtons))
        button->setEnabled(!text.path.isEmpty());
    // Rows may disappear, which a view does not expect while it moves to another one.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (const auto path = m_model->field(m_view->currentIndex()); !path.isEmpty())
                m_model->setCurrent(path);
        },
        Qt::QueuedConnection);
}

void TranslationPage::refresh() {
    restoreCurrent();
    m_pair->refresh(m_model->text(m_view->currentIndex()));
    const auto total = m_model->total();
    QStringList summary{
        tr("Translated: %1 of %2.")
            .arg(QLocale().toString(total.present), QLocale().toString(total.expected))};
    if (m_model->isLoading())
        summary += tr("Reading the texts…");
    summary += m_note;
    m_summary->setText(summary.join(u' '));
}

void TranslationPage::goTo(int distance) {
    const QWidget *focus = QApplication::focusWidget();
    auto *typing =
        focus ? focus->findChild<TextField *>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
    if (typing)
        typing->take();
    if (typing && !typing->refusal().isEmpty())
        return;
    const bool isInCell = typing && typing != m_pair->field();
    const QModelIndex index = m_model->nextMissing(m_view->currentIndex(), distance);
    m_note = index.isValid() || m_model->isLoading() ? QString() : tr("No other text is missing.");
    if (index.isValid()) {
        m_view->setCurrentIndex(index);
        if (isInCell)
            m_view->edit(index);
    }
    refresh();
}

void TranslationPage::copySource() {
    m_pair->target()->setFocus(Qt::OtherFocusReason);
    m_pair->copySource();
}

bool TranslationPage::showText(const FieldPath &path) {
    const QModelIndex index = m_model->reveal(path);
    if (!index.isValid())
        return false;
    m_view->setCurrentIndex(index);
    m_pair->target()->setFocus(Qt::OtherFocusReason);
    return true;
}

// Undo stays on this page.
void TranslationPage::showChange(const QString &path) {
    const auto field = FieldPath::parse(Zel::toUtf8(path));
    const QWidget *focus = window()->focusWidget();
    if (isVisible() && focus && isAncestorOf(focus) && field)
        showText(*field);
}

} // namespace Editor
