#include "behavior_details.h"

#include "models/languages_model.h"
#include "widgets/empty_hint.h"
#include "widgets/marks.h"

#include <packagemodel/behavior_commands.h>

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
using Zel::PackageInfoModel;
using Zel::RobotLanguage;

// One kind of list of a behavior: what reads it, and the commands that edit it.
template<typename SetCommand, typename AddRemoveCommand, typename Key>
ListSource listSource(QStringList (BehaviorInfoModel::*list)(const Key &) const,
                      PackageInfoModel *package, const QPointer<BehaviorInfoModel> &behavior,
                      const Key &key) {
    if (!behavior)
        return {};
    return {[=] { return behavior ? (behavior->*list)(key) : QStringList(); },
            [=](const QString &text) {
                const int end = int((behavior->*list)(key).size());
                return AddRemoveCommand::addCommand(package, behavior->path(), text, key, end);
            },
            [=](int index) {
                return AddRemoveCommand::removeCommand(package, behavior->path(), key, index);
            },
            [=](int index, const QString &text, bool isFinal) {
                return new SetCommand(package, behavior->path(), text, key, index, isFinal);
            }};
}

QStringList permissionsOf(const BehaviorInfoModel *behavior) {
    return behavior ? behavior->permissionList() : QStringList();
}

ListSource permissionSource(PackageInfoModel *package,
                            const QPointer<BehaviorInfoModel> &behavior) {
    if (!behavior)
        return {};
    const auto switched = [=](const QString &permission, bool isAdd) {
        return new Zel::BehaviorAddRemovePermissionCommand(package, behavior->path(), permission,
                                                           isAdd);
    };
    return {[=] { return permissionsOf(behavior); },
            [=](const QString &permission) { return switched(permission, true); },
            [=](int index) { return switched(permissionsOf(behavior).value(index), false); }};
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
    m_fields.append(addTextRow(form, tr("Pa&th:"), document,
                               {[this] { return field("path"); },
                                [this](const QString &text, bool isFinal) {
                                    return new Zel::BehaviorPathCommand(package(), path(), text,
                                                                        isFinal);
                                },
                                tr("A behavior needs a path.")}));
    m_nature->addItem(tr("None"), BehaviorInfoModel::natureNone());
    m_nature->addItem(tr("Interactive: it reacts to people"),
                      BehaviorInfoModel::natureInteractive());
    m_nature->addItem(tr("Solitary: the robot runs it on its own"),
                      BehaviorInfoModel::natureSolitary());
    form->addRow(tr("Nat&ure:"), m_nature);
    form->addRow(QString(), m_userRequestable);
    connect(m_nature, qOverload<int>(&QComboBox::activated), this, [this](int index) {
        const QString nature = m_nature->itemData(index).toString();
        if (m_behavior && nature != m_behavior->nature())
            m_document.push(new Zel::BehaviorNatureCommand(package(), path(), nature, true));
    });
    connect(m_userRequestable, &QCheckBox::clicked, this, [this] {
        m_document.push(new Zel::BehaviorSwitchUserRequestableCommand(package(), path()));
    });

    m_language->setModel(m_languages);
    m_language->setAccessibleName(tr("Language of the texts"));
    m_language->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    connect(m_language, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &BehaviorDetails::reload);
    auto *languageLabel = new QLabel(tr("Texts &in:"), this);
    languageLabel->setBuddy(m_language);
    auto *languageRow = new QHBoxLayout;
    languageRow->addWidget(languageLabel);
    languageRow->addWidget(m_language);
    languageRow->addStretch();

    m_tabs->setDocumentMode(true);
    m_tabs->addTab(newTextsTab(), tr("Texts"));
    m_sentences = addListTab(tr("Trigger sentences"), tr("A sentence that starts the behavior"));
    m_responses = addListTab(tr("Responses"), tr("What the robot says while it loads"));
    m_tags = addListTab(tr("Tags"), tr("A new tag"));
    m_conditions = addListTab(tr("Conditions"), tr("A new condition for this purpose"));
    m_permissions = addListTab(tr("Permissions"), tr("A new permission"));
    explainWhenEmpty(m_sentences->view(),
                     tr("What people say to start the behavior. Type a sentence below."));
    explainWhenEmpty(m_responses->view(),
                     tr("What the robot says until the behavior starts. Type a sentence below."));
    explainWhenEmpty(m_tags->view(), tr("Words that group behaviors. Type a tag below."));
    explainWhenEmpty(m_conditions->view(),
                     tr("What has to hold for the behavior to run. Type a condition below."));
    explainWhenEmpty(m_permissions->view(),
                     tr("What the behavior uses of the robot. Type a permission below."));
    m_permissions->setSuggestions({QStringLiteral("camera"), QStringLiteral("microphone"),
                                   QStringLiteral("motion"), QStringLiteral("speech")});

    auto *mark = new MarkLabel(
        document, [this] { return textField("triggerSentences"); }, this);
    auto *sentencesLayout = qobject_cast<QVBoxLayout *>(m_sentences->parentWidget()->layout());
    sentencesLayout->insertWidget(0, mark);

    m_purpose->setEditable(true);
    m_purpose->setInsertPolicy(QComboBox::NoInsert);
    m_purpose->addItems({QStringLiteral("launch"), QStringLiteral("suggestion")});
    connect(m_purpose, &QComboBox::currentTextChanged, this, &BehaviorDetails::setLists);
    auto *purposeLabel = new QLabel(tr("Purp&ose:"), this);
    purposeLabel->setBuddy(m_purpose);
    auto *purposeRow = new QHBoxLayout;
    purposeRow->addWidget(purposeLabel);
    purposeRow->addWidget(m_purpose, 1);
    auto *conditionsLayout = qobject_cast<QVBoxLayout *>(m_conditions->parentWidget()->layout());
    conditionsLayout->insertLayout(0, purposeRow);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 0, 0, 0);
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
    m_fields.append(addTextRow(form, tr("&Name:"), m_document,
                               {[this] { return textField("names"); },
                                [this](const QString &text, bool isFinal) {
                                    return new Zel::BehaviorNameCommand(package(), path(), text,
                                                                        language(), isFinal);
                                }}));
    auto *description = new QPlainTextEdit(tab);
    form->addRow(tr("&Description:"), description);
    m_fields.append(new TextField(description, m_document,
                                  {[this] { return textField("descriptions"); },
                                   [this](const QString &text, bool isFinal) {
                                       return new Zel::BehaviorDescriptionCommand(
                                           package(), path(), text, language(), isFinal);
                                   }}));
    return tab;
}

StringListEditor *BehaviorDetails::addListTab(const QString &title, const QString &placeholder) {
    auto *tab = new QWidget(this);
    auto *layout = new QVBoxLayout(tab);
    auto *editor = new StringListEditor(m_document, title, placeholder, tab);
    layout->addWidget(editor);
    m_tabs->addTab(tab, title);
    return editor;
}

QString BehaviorDetails::path() const {
    return m_behavior ? m_behavior->path() : QString();
}

FieldPath BehaviorDetails::field(const char *name) const {
    const FieldPath list = FieldPath().field("behaviors");
    const int row = int(package()->behaviors().indexOf(m_behavior));
    const FieldPath entry = Zel::PackageModel::itemPath(package(), list, row);
    return entry.isEmpty() ? entry : FieldPath(entry).field(name);
}

FieldPath BehaviorDetails::textField(const char *name) const {
    const FieldPath texts = field(name);
    return texts.isEmpty() ? texts : FieldPath(texts).key(Zel::toUtf8(language().isoCode()));
}

RobotLanguage BehaviorDetails::language() const {
    return Zel::Language::languageInUse(m_languages->keys().value(m_language->currentIndex()));
}

void BehaviorDetails::setBehavior(BehaviorInfoModel *behavior) {
    m_document.closeRun();
    m_behavior = behavior;
    setEnabled(behavior != nullptr);
    reload();
}

void BehaviorDetails::reload() {
    m_document.closeRun();
    for (TextField *field : std::as_const(m_fields))
        field->reload();
    const QSignalBlocker blocker(m_purpose);
    if (m_behavior) {
        // The purposes that the behavior knows come first.
        QStringList purposes;
        for (const auto &[purpose, conditions] :
             m_behavior->toBehaviorInfo().purposesToConditions())
            purposes.append(Zel::fromUtf8(purpose));
        for (const QString &usual : {QStringLiteral("launch"), QStringLiteral("suggestion")}) {
            if (!purposes.contains(usual))
                purposes.append(usual);
        }
        m_purpose->clear();
        m_purpose->addItems(purposes);
    }
    setLists();
    refresh();
}

void BehaviorDetails::setLists() {
    const RobotLanguage in = language();
    const QPointer<BehaviorInfoModel> behavior = m_behavior;
    m_sentences->setSource(listSource<Zel::BehaviorSetTriggerSentenceCommand,
                                      Zel::BehaviorAddRemoveTriggerSentenceCommand>(
        &BehaviorInfoModel::triggerSentences, package(), behavior, in));
    m_responses->setSource(listSource<Zel::BehaviorSetLoadingResponseCommand,
                                      Zel::BehaviorAddRemoveLoadingResponseCommand>(
        &BehaviorInfoModel::loadingResponses, package(), behavior, in));
    m_tags->setSource(listSource<Zel::BehaviorSetTagCommand, Zel::BehaviorAddRemoveTagCommand>(
        &BehaviorInfoModel::tags, package(), behavior, in));
    m_conditions->setSource(
        listSource<Zel::BehaviorSetConditionCommand, Zel::BehaviorAddRemoveConditionCommand>(
            &BehaviorInfoModel::conditions, package(), behavior, m_purpose->currentText()));
    m_permissions->setSource(permissionSource(package(), behavior));
}

void BehaviorDetails::refresh() {
    if (!m_behavior)
        return;
    int nature = m_nature->findData(m_behavior->nature());
    if (m_behavior->nature().isEmpty())
        nature = 0;
    if (nature < 0) {
        m_nature->addItem(m_behavior->nature(), m_behavior->nature());
        nature = m_nature->count() - 1;
    }
    m_nature->setCurrentIndex(nature);
    m_userRequestable->setChecked(m_behavior->isUserRequestable());

    const auto severity = m_document.behaviorSeverity(path());
    m_tabs->setTabIcon(1, severity ? severityIcon(*severity) : QIcon());
}

void BehaviorDetails::showSentences(const QString &languageCode) {
    m_language->setCurrentIndex(int(m_languages->keys().indexOf(languageCode)));
    m_tabs->setCurrentIndex(1);
    m_sentences->focusAddition();
}

void BehaviorDetails::startTypingPath() {
    startTyping(m_fields.first()->widget());
}

void BehaviorDetails::takePending() {
    for (StringListEditor *editor : {m_sentences, m_responses, m_tags, m_conditions, m_permissions})
        editor->takePending();
}

} // namespace Editor
