#include "behavior_details.h"

#include "behavior_lists.h"
#include "document/field_edits.h"
#include "models/languages_model.h"
#include "widgets/empty_hint.h"
#include "widgets/marks.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QListView>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace Editor {
namespace {

using Tano::FieldPath;
using Zel::BehaviorInfoModel;
using Zel::PackageModel::Edit;

constexpr int knownNatures = 3;

enum Tab { Texts, Sentences, Responses, Tags, Conditions, Permissions };

bool isOneOf(const QString &name, std::initializer_list<const char *> names) {
    return std::any_of(names.begin(), names.end(),
                       [&](const char *each) { return name == QLatin1String(each); });
}

} // namespace

BehaviorDetails::BehaviorDetails(Document &document, QWidget *parent)
    : QWidget(parent)
    , m_document(document)
    , m_nature(new QComboBox(this))
    , m_userRequestable(new QCheckBox(tr("A user may as&k for it"), this))
    , m_languages(new LanguagesModel(document, this))
    , m_language(new QComboBox(this))
    , m_tabs(new QTabWidget(this))
    , m_purpose(new QComboBox(this)) {
    auto *form = new QFormLayout;
    m_fields.append(addTextRow(
        form, tr("Pa&th:"), document,
        {[this] { return field("path"); }, refuseEmpty(tr("A behavior needs a path."))}));
    m_nature->addItem(tr("None"), BehaviorInfoModel::natureNone());
    m_nature->addItem(tr("Interactive: it reacts to people"),
                      BehaviorInfoModel::natureInteractive());
    m_nature->addItem(tr("Solitary: the robot runs it on its own"),
                      BehaviorInfoModel::natureSolitary());
    form->addRow(tr("Nat&ure:"), m_nature);
    m_natureMark = new MarkLabel(
        document, [this] { return field("nature"); }, this);
    form->addRow(QString(), m_natureMark);
    form->addRow(QString(), m_userRequestable);
    connect(m_nature, qOverload<int>(&QComboBox::activated), this, [this](int index) {
        const QString nature = m_nature->itemData(index).toString();
        if (m_behavior && nature != m_behavior->nature())
            m_document.edit({{Edit::Action::Set, field("nature"), nature}});
    });
    connect(m_userRequestable, &QCheckBox::clicked, this, [this](bool isChecked) {
        m_document.edit({{Edit::Action::Set, field("userRequestable"), isChecked}});
    });

    m_language->setModel(m_languages);
    m_language->setAccessibleName(tr("Language of the texts"));
    m_language->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    connect(m_language, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &BehaviorDetails::changeLanguage);
    auto *languageLabel = new QLabel(tr("Texts &in:"), this);
    languageLabel->setBuddy(m_language);
    auto *languageRow = new QHBoxLayout;
    languageRow->addWidget(languageLabel);
    languageRow->addWidget(m_language);
    languageRow->addStretch();

    m_tabs->setDocumentMode(true);
    m_tabs->addTab(newTextsTab(), tr("Texts"));
    for (const ListTab &tab : listTabs) {
        m_lists.append(addListTab(tab.field, tr(tab.title), tr(tab.placeholder)));
        explainWhenEmpty(m_lists.last()->view(), tr(tab.purpose));
    }
    list(Permissions)
        ->setSuggestions({QStringLiteral("camera"), QStringLiteral("microphone"),
                          QStringLiteral("motion"), QStringLiteral("speech")});
    m_sentencesMark = new MarkLabel(
        document, [this] { return textField("triggerSentences"); }, this);
    tabLayout(Sentences)->insertWidget(0, m_sentencesMark);
    tabLayout(Conditions)->insertLayout(0, newPurposeRow());

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addLayout(form);
    layout->addSpacing(4);
    layout->addLayout(languageRow);
    layout->addWidget(m_tabs, 1);
    connect(&document, &Document::edited, this, &BehaviorDetails::refresh);
    setBehavior(nullptr);
}

QWidget *BehaviorDetails::newTextsTab() {
    auto *tab = new QWidget(this);
    auto *form = new QFormLayout(tab);
    m_fields.append(
        addTextRow(form, tr("&Name:"), m_document, {[this] { return textField("names"); }}));
    m_fields.append(new TextField(new QPlainTextEdit(tab), m_document,
                                  {[this] { return textField("descriptions"); }}));
    addFieldRow(form, tr("&Description:"), m_fields.last());
    return tab;
}

StringListEditor *BehaviorDetails::addListTab(const char *field, const QString &title,
                                              const QString &placeholder) {
    auto *tab = new QWidget(this);
    auto *layout = new QVBoxLayout(tab);
    auto *editor = new StringListEditor(
        m_document, title, placeholder, [this, field] { return listField(field); },
        !isOneOf(QLatin1String(field), {"permissions"}), tab);
    layout->addWidget(editor);
    m_tabs->addTab(tab, title);
    return editor;
}

QHBoxLayout *BehaviorDetails::newPurposeRow() {
    m_purpose->setEditable(true);
    m_purpose->setInsertPolicy(QComboBox::NoInsert);
    connect(m_purpose, &QComboBox::currentTextChanged, this, &BehaviorDetails::changePurpose);
    auto *label = new QLabel(tr("Purp&ose:"), this);
    label->setBuddy(m_purpose);
    auto *row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(m_purpose, 1);
    return row;
}

QVBoxLayout *BehaviorDetails::tabLayout(int tab) const {
    return qobject_cast<QVBoxLayout *>(m_tabs->widget(tab)->layout());
}

StringListEditor *BehaviorDetails::list(int tab) const {
    return m_lists.at(tab - Sentences);
}

FieldPath BehaviorDetails::field(const char *name) const {
    const FieldPath list = FieldPath().field("behaviors");
    const int row = int(package()->behaviors().indexOf(m_behavior));
    const FieldPath entry = Zel::PackageModel::itemPath(package(), list, row);
    return entry.isEmpty() ? entry : FieldPath(entry).field(name);
}

FieldPath BehaviorDetails::textField(const char *name) const {
    const FieldPath texts = field(name);
    return texts.isEmpty() || m_shownLanguage.isEmpty()
               ? FieldPath()
               : FieldPath(texts).key(Zel::toUtf8(m_shownLanguage));
}

FieldPath BehaviorDetails::listField(const char *name) const {
    const QString list = QLatin1String(name);
    if (isOneOf(list, {"permissions"}))
        return field(name);
    if (!isOneOf(list, {"conditions"}))
        return textField(name);
    const FieldPath conditions = field(name);
    return conditions.isEmpty() ? conditions
                                : FieldPath(conditions).key(Zel::toUtf8(m_shownPurpose));
}

void BehaviorDetails::setBehavior(BehaviorInfoModel *behavior) {
    leaveLists();
    m_behavior = behavior;
    setEnabled(behavior != nullptr);
    if (!purposes().contains(m_purpose->currentText())) {
        const QSignalBlocker blocker(m_purpose);
        m_purpose->setEditText(purposes().first());
    }
    reload();
}

void BehaviorDetails::leaveLists() {
    for (StringListEditor *editor : std::as_const(m_lists))
        editor->leave();
}

void BehaviorDetails::changeLanguage() {
    leaveLists();
    m_shownLanguage = m_languages->keys().value(m_language->currentIndex());
    reload();
}

void BehaviorDetails::changePurpose() {
    list(Conditions)->leave();
    m_shownPurpose = m_purpose->currentText();
    list(Conditions)->reload();
}

QStringList BehaviorDetails::purposes() const {
    QStringList purposes = m_behavior ? m_behavior->purposes() : QStringList();
    for (const QString &usual : {QStringLiteral("launch"), QStringLiteral("suggestion")}) {
        if (!purposes.contains(usual))
            purposes.append(usual);
    }
    return purposes;
}

// Keeps the shown purpose, which may be a new one.
void BehaviorDetails::fillPurposes() {
    const QSignalBlocker blocker(m_purpose);
    m_shownPurpose = m_purpose->currentText();
    m_purpose->clear();
    m_purpose->addItems(purposes());
    m_purpose->setCurrentIndex(m_purpose->findText(m_shownPurpose));
    m_purpose->setEditText(m_shownPurpose);
}

void BehaviorDetails::reload() {
    m_shownPurpose = m_purpose->currentText();
    for (TextField *field : std::as_const(m_fields))
        field->reload();
    for (StringListEditor *editor : std::as_const(m_lists))
        editor->reload();
    m_natureMark->refresh();
    m_sentencesMark->refresh();
    refresh();
}

QIcon BehaviorDetails::tabIcon(int tab) const {
    auto severity = tab == Texts ? m_document.fieldSeverity(field("names"))
                                 : m_document.fieldSeverity(field(listTabs.at(tab - 1).field));
    if (tab == Texts)
        severity = std::max(severity, m_document.fieldSeverity(field("descriptions")));
    return severity ? severityIcon(*severity) : QIcon();
}

void BehaviorDetails::refresh() {
    for (int tab = Texts; tab <= Permissions; ++tab)
        m_tabs->setTabIcon(tab, tabIcon(tab));
    if (!m_behavior) {
        m_nature->setCurrentIndex(0);
        m_userRequestable->setChecked(false);
        return;
    }
    if (m_purpose->count() != purposes().size())
        fillPurposes();
    while (m_nature->count() > knownNatures)
        m_nature->removeItem(knownNatures); // of another behavior
    int nature = m_nature->findData(m_behavior->nature());
    if (m_behavior->nature().isEmpty())
        nature = 0;
    if (nature < 0) {
        m_nature->addItem(m_behavior->nature(), m_behavior->nature());
        nature = m_nature->count() - 1;
    }
    m_nature->setCurrentIndex(nature);
    m_userRequestable->setChecked(m_behavior->isUserRequestable());
}

void BehaviorDetails::startTypingPath() {
    startTyping(m_fields.first()->widget());
}

void BehaviorDetails::showField(const FieldPath &path) {
    const QString name = fieldName(path, 1);
    const QString key = fieldKey(path, 1);
    if (isOneOf(name, {"conditions"}))
        m_purpose->setCurrentText(key);
    else if (const int language = int(m_languages->keys().indexOf(key)); language >= 0)
        m_language->setCurrentIndex(language);

    const auto tab = std::find_if(listTabs.begin(), listTabs.end(),
                                  [&](const ListTab &each) { return isOneOf(name, {each.field}); });
    if (tab != listTabs.end()) {
        const int index = Sentences + int(tab - listTabs.begin());
        m_tabs->setCurrentIndex(index);
        list(index)->showItem(itemIndex(path));
    } else if (isOneOf(name, {"names", "descriptions"})) {
        m_tabs->setCurrentIndex(Texts);
    } else if (isOneOf(name, {"nature"})) {
        m_nature->setFocus(Qt::OtherFocusReason);
    } else if (isOneOf(name, {"userRequestable"})) {
        m_userRequestable->setFocus(Qt::OtherFocusReason);
    }
}

} // namespace Editor
