#include "dialogs_page.h"

#include "document/field_edits.h"
#include "models/entry_models.h"
#include "widgets/empty_hint.h"
#include "widgets/icons.h"
#include "widgets/row_actions.h"
#include "widgets/typing_delegate.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHeaderView>
#include <QListView>
#include <QPushButton>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

namespace Editor {

using Tano::FieldPath;
using Zel::DialogInfoModel;

DialogsPage::DialogsPage(Document &document, QWidget *parent)
    : Page(document, tr("&Dialogs"), iconOf(Symbol::Dialogs), parent)
    , m_dialogs(new DialogsModel(document, this))
    , m_topics(new TopicsModel(document, this))
    , m_list(new QListView(this))
    , m_table(new QTableView(this)) {
    auto *splitter = new QSplitter(this);
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(16);
    splitter->addWidget(newList());
    splitter->addWidget(newDetails());
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({230, 650});
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->addWidget(splitter);

    connect(m_list->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &DialogsPage::showCurrent);
    connect(m_dialogs, &QAbstractItemModel::modelReset, this, &DialogsPage::showCurrent);
    connect(&document, &Document::edited, this, &DialogsPage::refresh);
    showCurrent();
}

QWidget *DialogsPage::newList() {
    m_list->setModel(m_dialogs);
    setUpTable(m_list, document(), tr("Dialogs"));
    explainWhenEmpty(m_list, tr("A dialog is a topic that the robot can talk about, with a file "
                                "for each language. “Add” adds one."));
    auto *add = newListButton(tr("&Add"), true, this);
    m_remove = newListButton(tr("&Remove"), false, this);
    auto *rows = new RowActions(m_list, document(), {[] { return FieldPath().field("dialogs"); }});
    connect(add, &QPushButton::clicked, this, &DialogsPage::add);
    connect(m_remove, &QPushButton::clicked, rows, &RowActions::remove);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(add);
    buttons->addWidget(m_remove);
    buttons->addStretch();
    auto *part = new QWidget(this);
    auto *layout = new QVBoxLayout(part);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_list);
    layout->addLayout(buttons);
    return part;
}

QWidget *DialogsPage::newDetails() {
    m_details = new QWidget(this);
    auto *form = new QFormLayout;
    m_name = addTextRow(
        form, tr("&Topic:"), document(),
        {[this] { return field("topicName"); }, refuseEmpty(tr("A dialog needs a topic name."))});
    m_typeVersion = addTextRow(form, tr("Type vers&ion:"), document(),
                               {[this] { return field("typeVersion"); }});

    m_table->setModel(m_topics);
    setUpTable(m_table, document(), tr("Topic files"));
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    m_removeTopic = newListButton(tr("Remove Fi&le"), false, this);
    removeWithDelete(m_table, m_removeTopic);
    connect(m_removeTopic, &QPushButton::clicked, this,
            [this] { m_topics->removeTopic(m_table->currentIndex().row()); });
    m_chooseTopic = new QPushButton(iconOf(Symbol::Open), tr("&Choose File…"), this);
    m_chooseTopic->setAutoDefault(false);
    connect(m_chooseTopic, &QPushButton::clicked, this, &DialogsPage::chooseTopic);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &DialogsPage::refresh);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_chooseTopic);
    buttons->addWidget(m_removeTopic);
    buttons->addStretch();

    auto *layout = new QVBoxLayout(m_details);
    layout->setContentsMargins({});
    layout->addLayout(form);
    layout->addSpacing(4);
    layout->addWidget(newHeading(tr("Topic files"), m_details));
    layout->addWidget(m_table);
    layout->addLayout(buttons);
    return m_details;
}

void DialogsPage::chooseTopic() {
    const QDir folder = QFileInfo(document().fileName()).absoluteDir();
    const QString file = QFileDialog::getOpenFileName(this, tr("Choose a Topic File"),
                                                      folder.path(), tr("All files (*)"));
    if (!file.isEmpty())
        m_topics->setFile(m_table->currentIndex().row(), folder.relativeFilePath(file));
}

DialogInfoModel *DialogsPage::current() const {
    return package()->dialogs().value(m_list->currentIndex().row());
}

FieldPath DialogsPage::field(const char *name) const {
    const FieldPath entry = Zel::PackageModel::itemPath(package(), FieldPath().field("dialogs"),
                                                        m_list->currentIndex().row());
    return entry.isEmpty() ? entry : FieldPath(entry).field(name);
}

void DialogsPage::showCurrent() {
    if (!m_list->currentIndex().isValid() && m_dialogs->rowCount() > 0)
        selectAlone(m_list, m_dialogs->index(0, 0));
    m_topics->setDialog(m_list->currentIndex().row());
    m_name->reload();
    m_typeVersion->reload();
    refresh();
}

void DialogsPage::refresh() {
    m_details->setEnabled(current() != nullptr);
    m_remove->setEnabled(current() != nullptr);
    const bool isTopic = m_table->currentIndex().isValid();
    m_removeTopic->setEnabled(isTopic);
    m_chooseTopic->setEnabled(isTopic && !document().fileName().isEmpty());
}

void DialogsPage::add() {
    const QString name = freeName(QStringLiteral("new-topic"), [this](const QString &taken) {
        return package()->dialog(taken);
    });
    Tano::DialogInfo dialog;
    dialog.setTopicName(Zel::toUtf8(name));
    document().edit({appended(FieldPath().field("dialogs"), dialog)});
    selectAlone(m_list, m_dialogs->index(m_dialogs->rowCount() - 1, 0));
    startTyping(m_name->widget());
}

bool DialogsPage::showField(const FieldPath &path) {
    if (fieldName(path) != QLatin1String("dialogs"))
        return false;
    const int row = entryIndex(package()->dialogs(), &DialogInfoModel::topicName, path);
    if (row >= 0)
        selectAlone(m_list, m_dialogs->index(row, 0));
    if (fieldName(path, 1) == QLatin1String("topics")) {
        m_table->setFocus(Qt::OtherFocusReason);
        m_table->setCurrentIndex(
            m_topics->index(int(m_topics->keys().indexOf(fieldKey(path, 1))), 1));
    } else if (!focusTextField(path)) {
        m_list->setFocus(Qt::OtherFocusReason);
    }
    return true;
}

} // namespace Editor
