#include "translation_page.h"

#include "document/field_edits.h"
#include "models/translation_model.h"
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
#include <QSignalBlocker>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

#include <utility>

namespace Editor {

using Tano::FieldPath;
using Zel::PackageModel::TextState;

namespace {

// The same field in another language.
FieldPath inLanguage(const FieldPath &path, const QString &code) {
    FieldPath translated;
    const auto &steps = path.steps();
    for (const auto &step : steps) {
        translated.field(step.field);
        for (const auto &selector : step.selectors) {
            const bool isLanguage = &step == &steps.back() && &selector == &step.selectors.front();
            translated.key(isLanguage ? Zel::toUtf8(code) : selector.text);
        }
    }
    return translated;
}

void fillWith(QComboBox *chooser, const QStringList &codes, const QString &current) {
    const QSignalBlocker blocker(chooser);
    chooser->clear();
    for (const QString &code : codes)
        chooser->addItem(Zel::Language::languageInUse(code).uiName(), code);
    chooser->setCurrentIndex(std::max(0, chooser->findData(current)));
}

} // namespace

TranslationPage::TranslationPage(Document &document, QWidget *parent)
    : Page(document, tr("&Translation"), iconOf(Symbol::Translation), parent)
    , m_model(new TranslationModel(document, this))
    , m_source(new QComboBox(this))
    , m_target(new QComboBox(this))
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
    layout->addWidget(newButtons());
    connectModel();
    refresh();
}

QWidget *TranslationPage::newChoosers() {
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](const QString &title, QComboBox *chooser) {
        auto *label = new QLabel(title, row);
        label->setBuddy(chooser);
        chooser->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        chooser->setMinimumContentsLength(8);
        layout->addWidget(label);
        layout->addWidget(chooser, 1);
    };
    add(tr("&Source:"), m_source);
    add(tr("&Target:"), m_target);
    add(tr("Sho&w:"), m_filter);
    m_filter->addItem(tr("All texts"));
    for (const TextState state : {TextState::Missing, TextState::SameAsSource,
                                  TextState::SourceChanged, TextState::Malformed})
        m_filter->addItem(stateWords(state), int(state));
    m_search->setPlaceholderText(tr("Find a text"));
    m_search->setAccessibleName(tr("Find a text"));
    m_search->setClearButtonEnabled(true);
    layout->addWidget(m_search, 1);
    connect(m_source, qOverload<int>(&QComboBox::activated), this, &TranslationPage::chooseSource);
    connect(m_target, qOverload<int>(&QComboBox::activated), this,
            &TranslationPage::chooseLanguages);
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
                                        void (TranslationPage::*slot)()) {
    auto *button = new QPushButton(text, this);
    button->setAutoDefault(false);
    button->setToolTip(toolTip);
    connect(button, &QPushButton::clicked, this, slot);
    return button;
}

QWidget *TranslationPage::newButtons() {
    auto *part = new QWidget(this);
    m_rowButtons = {
        newButton(tr("Previo&us Missing"), tr("Alt+Up"), &TranslationPage::goToPrevious),
        newButton(tr("&Next Missing"), tr("Alt+Down, or Ctrl+Return while typing"),
                  &TranslationPage::goToNext),
        newButton(tr("&Copy Source"), tr("Copies the source text into the translation"),
                  &TranslationPage::copySource)};
    m_listButtons = {newButton(tr("Fill &All Missing"),
                               tr("Copies the source text to where the translation is missing"),
                               &TranslationPage::fillAll),
                     newButton(tr("E&xport XLIFF…"), tr("Writes the texts for translation tools"),
                               &TranslationPage::exportAll)};
    auto *buttons = new QHBoxLayout;
    const auto all = m_rowButtons + m_listButtons;
    for (QPushButton *button : all)
        buttons->addWidget(button);
    buttons->addWidget(newButton(tr("&Import XLIFF…"), tr("Reads texts from translation tools"),
                                 &TranslationPage::importAll));
    buttons->addStretch();
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto *layout = new QVBoxLayout(part);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_summary);
    layout->addLayout(buttons);
    return part;
}

void TranslationPage::connectModel() {
    connect(m_model, &TranslationModel::updated, this, &TranslationPage::refresh);
    connect(m_model, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
        if (const FieldPath path = m_model->field(m_view->currentIndex()); !path.isEmpty())
            m_wanted = path;
    });
    connect(m_model, &QAbstractItemModel::modelReset, this, &TranslationPage::showCurrent);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &TranslationPage::showCurrent);
    connect(m_view, &QTableView::activated, this, [this] { m_pair->target()->setFocus(); });
    connect(&document(), &Document::edited, this, &TranslationPage::followDocument);
    connect(&document(), &Document::fieldChanged, this, &TranslationPage::showChange);
}

TextBinding TranslationPage::bindingOf(const std::function<QModelIndex()> &index) const {
    return {[this, index] { return m_model->field(index()); },
            [this, index](const QString &) { return m_model->refusal(index()); }};
}

LanguagePair TranslationPage::languages() const {
    return {m_target->currentData().toString(), m_source->currentData().toString()};
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
    if (codes != m_codes) {
        const QString source = m_source->currentData().toString();
        m_codes = codes;
        fillWith(m_source, codes,
                 codes.contains(source) ? source : Zel::Language::defaultLanguage().isoCode());
        fillTargets();
    }
    m_model->setLanguages(languages().language, languages().sourceLanguage);
}

// All languages but the source; the one that was chosen last, if it is there.
void TranslationPage::fillTargets() {
    QStringList codes = m_codes;
    codes.removeAll(m_source->currentData().toString());
    fillWith(m_target, codes, m_language);
    for (QPushButton *button : std::as_const(m_listButtons))
        button->setEnabled(!codes.isEmpty());
}

void TranslationPage::chooseSource() {
    // The two swap where they would be the same.
    if (m_source->currentData() == m_target->currentData())
        m_language = m_model->sourceLanguage();
    fillTargets();
    chooseLanguages();
}

void TranslationPage::chooseLanguages() {
    m_note.clear();
    m_language = languages().language;
    if (const FieldPath path = m_model->field(m_view->currentIndex()); !path.isEmpty())
        m_wanted = path;
    const FieldPath wanted = inLanguage(m_wanted, m_language);
    m_model->setLanguages(m_language, languages().sourceLanguage);
    m_wanted = wanted;
}

void TranslationPage::applyFilter() {
    m_note.clear();
    TextFilter filter;
    if (const QVariant state = m_filter->currentData(); state.isValid())
        filter.state = TextState(state.toInt());
    filter.search = m_search->text();
    m_model->setFilter(filter);
}

// After a reset, the row that was the current one before, once it comes.
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
    // Rows may go, which a view does not expect while it moves to another one.
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
    m_summary->setText((summary + QStringList(m_note)).join(u' '));
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

void TranslationPage::fillAll() {
    m_note = fillMissingTexts(document(), languages());
    refresh();
}

void TranslationPage::exportAll() {
    exportTexts(this, document(), languages());
}

void TranslationPage::importAll() {
    importTexts(this, document());
}

bool TranslationPage::showField(const FieldPath &) {
    return false;
}

bool TranslationPage::showText(const FieldPath &path) {
    const QModelIndex index = m_model->reveal(path);
    if (!index.isValid())
        return false;
    m_view->setCurrentIndex(index);
    m_pair->target()->setFocus(Qt::OtherFocusReason);
    return true;
}

// A translator who takes an edit back stays on this page.
void TranslationPage::showChange(const QString &path) {
    const auto field = FieldPath::parse(Zel::toUtf8(path));
    const QWidget *focus = window()->focusWidget();
    if (isVisible() && focus && isAncestorOf(focus) && field)
        showText(*field);
}

} // namespace Editor
