#include "texts_page.h"

#include "document/field_edits.h"
#include "language_chooser.h"
#include "models/languages_model.h"
#include "widgets/coverage_delegate.h"
#include "widgets/empty_hint.h"
#include "widgets/hint_label.h"
#include "widgets/icons.h"
#include "widgets/marks.h"
#include "widgets/row_actions.h"
#include "widgets/typing_delegate.h"

#include <packagemodel/language_name.h>

#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

namespace Editor {

using Tano::FieldPath;
using Zel::RobotLanguage;

TextsPage::TextsPage(Document &document, QWidget *parent)
    : Page(document, tr("&Languages"), iconOf(Symbol::Languages), parent)
    , m_model(new LanguagesModel(document, this))
    , m_table(new QTableView(this))
    , m_summary(new HintLabel({}, this))
    , m_details(new QWidget(this))
    , m_detailsTitle(new QLabel(m_details)) {
    m_detailsTitle->setTextFormat(Qt::PlainText);
    m_table->setModel(m_model);
    setUpTable(m_table, document, tr("Languages and texts"));
    explainWhenEmpty(
        m_table,
        tr("The languages that the package supports or has texts in. “Add Language” adds one."));
    m_table->setItemDelegateForColumn(LanguagesModel::Coverage, new CoverageDelegate(m_table));
    m_table->setSelectionBehavior(QAbstractItemView::SelectItems);
    QHeaderView *header = m_table->horizontalHeader();
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(LanguagesModel::Name, QHeaderView::Interactive);
    header->resizeSection(LanguagesModel::Name, 150);
    header->setSectionResizeMode(LanguagesModel::Description, QHeaderView::Stretch);
    header->setSectionResizeMode(LanguagesModel::Coverage, QHeaderView::Interactive);
    header->resizeSection(LanguagesModel::Coverage, 110);

    auto *add = newListButton(tr("&Add Language…"), true, this);
    connect(add, &QPushButton::clicked, this, &TextsPage::chooseLanguage);
    m_remove = newListButton(tr("&Remove Language"), false, this);
    const auto list = [] { return LanguagesModel::listOf(LanguagesModel::Supported); };
    const auto removal = [this](const QVector<int> &rows) { m_model->remove(rows); };
    auto *rows = new RowActions(m_table, document, {list, true, removal});
    connect(m_remove, &QPushButton::clicked, rows, &RowActions::remove);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(add);
    buttons->addWidget(m_remove);
    buttons->addStretch();
    m_summary->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);

    auto *tablePart = new QWidget(this);
    auto *tableLayout = new QVBoxLayout(tablePart);
    tableLayout->setContentsMargins(0, 0, 0, 0);
    tableLayout->addWidget(m_summary);
    tableLayout->addWidget(new MarkLabel(document, list, tablePart));
    tableLayout->addWidget(m_table);
    tableLayout->addLayout(buttons);

    auto *form = new QFormLayout(m_details);
    form->setContentsMargins(0, 8, 0, 0);
    QFont bold = m_detailsTitle->font();
    bold.setBold(true);
    m_detailsTitle->setFont(bold);
    form->addRow(m_detailsTitle);
    const auto binding = [this](const char *field) -> TextBinding {
        return {[this, field] {
            return FieldPath().field(field).key(Zel::toUtf8(current().isoCode()));
        }};
    };
    m_name = addTextRow(form, tr("&Name:"), document, binding("names"));
    auto *description = new QPlainTextEdit(m_details);
    description->setMinimumHeight(description->fontMetrics().lineSpacing() * 3 + 14);
    m_description = new TextField(description, document, binding("descriptions"));
    addFieldRow(form, tr("&Description:"), m_description);

    auto *splitter = new QSplitter(Qt::Vertical, this);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(tablePart);
    splitter->addWidget(m_details);
    splitter->setStretchFactor(0, 1);
    splitter->setSizes({340, 150});
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->addWidget(splitter);

    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &TextsPage::showCurrent);
    connect(m_model, &QAbstractItemModel::modelReset, this, &TextsPage::showCurrent);
    connect(&document, &Document::edited, this, &TextsPage::refresh);
    showCurrent();
    refresh();
}

RobotLanguage TextsPage::current() const {
    return Zel::Language::languageInUse(
        m_table->currentIndex().data(LanguagesModel::CodeRole).toString());
}

void TextsPage::showCurrent() {
    if (!m_table->currentIndex().isValid() && m_model->rowCount() > 0)
        selectAlone(m_table, m_model->index(0, LanguagesModel::Name));
    m_name->reload();
    m_description->reload();
    refresh();
}

void TextsPage::refresh() {
    const RobotLanguage language = current();
    const bool isShown = !language.isoCode().isEmpty();
    m_details->setEnabled(isShown);
    m_detailsTitle->setText(isShown ? Zel::PackageModel::languageName(language)
                                    : tr("No language is selected."));
    m_remove->setEnabled(isShown);
    m_summary->setText(m_model->summary());
}

void TextsPage::chooseLanguage() {
    QSet<QString> present;
    for (const RobotLanguage &language : package()->supportedLanguages())
        present.insert(language.isoCode());
    LanguageChooser chooser(present, this);
    if (chooser.exec() == QDialog::Accepted)
        addLanguage(chooser.code());
}

void TextsPage::addLanguage(const QString &code) {
    m_model->add(code);
    selectAlone(m_table, m_model->index(int(m_model->keys().indexOf(code)), LanguagesModel::Name));
    startTyping(m_name->widget());
}

bool TextsPage::showField(const FieldPath &path) {
    for (const auto column : {LanguagesModel::Supported, LanguagesModel::Described}) {
        if (fieldName(path) != fieldName(LanguagesModel::listOf(column)))
            continue;
        m_table->setFocus(Qt::OtherFocusReason);
        selectAlone(m_table, m_model->index(int(m_model->keys().indexOf(fieldKey(path))), column));
        return true;
    }
    const bool isName = fieldName(path) == QLatin1String("names");
    if (!isName && fieldName(path) != QLatin1String("descriptions"))
        return false;
    const int row = int(m_model->keys().indexOf(fieldKey(path)));
    selectAlone(m_table,
                m_model->index(row, isName ? LanguagesModel::Name : LanguagesModel::Description));
    (isName ? m_name : m_description)->widget()->setFocus(Qt::OtherFocusReason);
    return true;
}

} // namespace Editor
