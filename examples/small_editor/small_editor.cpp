#include "small_editor.h"

#include <packagemodel/package_edit_command.h>
#include <packagemodel/package_info_utils.h>

#include <QFileDialog>
#include <QFormLayout>
#include <QMenuBar>
#include <QMessageBox>

using namespace Zel;
using namespace Zel::PackageModel;

SmallEditor::SmallEditor() {
    setCentralWidget(new QWidget);
    auto *form = new QFormLayout(centralWidget());
    form->addRow(tr("Language"), m_languages);
    form->addRow(tr("Name"), m_name);
    form->addRow(tr("Description"), m_description);
    form->addRow(tr("Behaviors"), m_behaviors);
    form->addRow(tr("Problems"), m_problems);
    connect(m_languages, &QComboBox::currentTextChanged, this, &SmallEditor::showTexts);
    for (const auto &[line, field] : {std::pair(m_name, "names"), {m_description, "descriptions"}})
        connect(line, &QLineEdit::textEdited, this,
                [this, field = field](const QString &text) { setText({}, field, text); });
    connect(m_behaviors, &QListWidget::itemChanged, this, [this](const QListWidgetItem *item) {
        const auto list = Tano::FieldPath().field("behaviors");
        setText(itemPath(m_package.get(), list, m_behaviors->row(item)), "names", item->text());
    });
    connect(&m_stack, &QUndoStack::indexChanged, this, &SmallEditor::showTexts);
    connect(&m_stack, &QUndoStack::cleanChanged, this,
            [this](bool isClean) { setWindowModified(!isClean); });
    const auto chooseFile = [this] {
        const QString name = QFileDialog::getOpenFileName(this, {}, {}, tr("Manifests (*.xml)"));
        if (!name.isEmpty() && !open(name))
            QMessageBox::warning(this, {}, tr("%1 could not be read.").arg(name));
    };
    menuBar()->addAction(tr("Open"), this, chooseFile)->setShortcut(QKeySequence::Open);
    menuBar()->addAction(tr("Save"), this, &SmallEditor::save)->setShortcut(QKeySequence::Save);
    menuBar()->addActions({m_stack.createUndoAction(this), m_stack.createRedoAction(this)});
    menuBar()->actions().at(2)->setShortcut(QKeySequence::Undo);
    menuBar()->actions().at(3)->setShortcut(QKeySequence::Redo);
}

bool SmallEditor::open(const QString &fileName) {
    auto package = std::make_unique<PackageInfoModel>(); // since even a failed load resets
    if (!package->loadFromManifestFile(fileName))
        return false;
    m_stack.clear();
    m_package = std::move(package);
    m_fileName = fileName;
    setWindowTitle(fileName + QStringLiteral("[*]"));
    const QSignalBlocker blocker(m_behaviors);
    m_behaviors->clear();
    for (int i = 0; i < m_package->behaviors().size(); ++i)
        (new QListWidgetItem(m_behaviors))->setFlags(Qt::ItemIsEnabled | Qt::ItemIsEditable);
    m_languages->clear();
    for (const RobotLanguage &language : m_package->supportedLanguages())
        m_languages->addItem(language.uiName(), language.isoCode());
    m_validator = std::make_unique<PackageInfoValidator>(m_package.get());
    connect(m_validator.get(), &PackageInfoValidator::applicationNamesStateChanged, this,
            &SmallEditor::showProblems);
    connect(m_validator.get(), &PackageInfoValidator::applicationDescriptionsStateChanged, this,
            &SmallEditor::showProblems);
    m_validator->activate();
    showTexts();
    return true;
}

void SmallEditor::save() {
    m_package->syncRecord();
    if (m_package->saveToManifestFile(m_fileName))
        m_stack.setClean();
    else
        QMessageBox::warning(this, {}, tr("%1 could not be saved.").arg(m_fileName));
}

void SmallEditor::setText(Tano::FieldPath path, const char *field, const QString &text) {
    path.field(field).key(toUtf8(language().isoCode()));
    const Edits edits{{Edit::Action::Set, path, text}};
    m_stack.push(new PackageEditCommand(m_package.get(), edits, {}, false));
}

void SmallEditor::showTexts() {
    if (m_name->text() != m_package->name(language())) // or the cursor would move
        m_name->setText(m_package->name(language()));
    if (m_description->text() != m_package->description(language()))
        m_description->setText(m_package->description(language()));
    const QSignalBlocker blocker(m_behaviors);
    int row = 0;
    for (const BehaviorInfoModel *behavior : m_package->behaviors())
        m_behaviors->item(row++)->setText(BehaviorModel::uiName(behavior, language()));
}

void SmallEditor::showProblems() {
    m_problems->clear();
    for (const Issue &issue : issues(m_package.get()))
        m_problems->addItem(issue.plainText());
}
