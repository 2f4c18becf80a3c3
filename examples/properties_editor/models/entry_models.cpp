#include "entry_models.h"

#include "document/field_edits.h"

#include <packagemodel/dialog_commands.h>
#include <packagemodel/language_name.h>
#include <packagemodel/package_edit_command.h>

#include <array>

namespace Editor {

using Tano::FieldPath;
using Zel::DialogInfoModel;
using Zel::RobotLanguage;
using Zel::Language::languageInUse;
using Zel::PackageModel::Edit;

DialogsModel::DialogsModel(Document &document, QObject *parent)
    : TableModel(document, parent) {
    start();
}

int DialogsModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : 1;
}

QVariant DialogsModel::data(const QModelIndex &index, int role) const {
    const DialogInfoModel *dialog = package()->dialogs().value(index.row());
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || !dialog || role != Qt::DisplayRole)
        return {};
    return dialog->topicName();
}

QStringList DialogsModel::currentKeys() const {
    return numbered(int(package()->dialogs().size()));
}

QStringList DialogsModel::titles() const {
    return {tr("Topic")};
}

TopicsModel::TopicsModel(Document &document, QObject *parent)
    : TableModel(document, parent) {
    start();
}

const DialogInfoModel *TopicsModel::dialog() const {
    return package()->dialogs().value(m_dialogRow);
}

void TopicsModel::setDialog(int row) {
    m_dialogRow = row;
    start();
}

int TopicsModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : 2;
}

QVariant TopicsModel::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || !dialog() ||
        (role != Qt::DisplayRole && role != Qt::EditRole))
        return {};
    return index.column() == 0 ? Zel::PackageModel::languageName(languageInUse(key(index)))
                               : fieldText(package(), field(index));
}

FieldPath TopicsModel::field(const QModelIndex &index) const {
    const FieldPath list = FieldPath().field("dialogs");
    const FieldPath entry = Zel::PackageModel::itemPath(package(), list, m_dialogRow);
    return entry.isEmpty() ? entry : FieldPath(entry).field("topics").key(Zel::toUtf8(key(index)));
}

bool TopicsModel::setData(const QModelIndex &index, const QVariant &value, int role) {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || !dialog() || role != Qt::EditRole ||
        index.column() != 1)
        return false;
    document().pushTyped([package = package(), row = m_dialogRow,
                          language = languageInUse(key(index)),
                          text = value.toString()](bool isFinal) {
        return new Zel::DialogInfoModelTopicCommand(
            package, package->dialogs().at(row)->topicName(), language, text, isFinal);
    });
    return true;
}

void TopicsModel::removeTopic(int row) {
    const RobotLanguage language = languageInUse(keys().value(row));
    if (!dialog())
        return;
    const auto &topics = dialog()->topics();
    for (const auto &[path, topicLanguage] : topics) {
        if (topicLanguage == language) {
            document().push(new Zel::DialogInfoModelRemoveTopicCommand(
                package(), dialog()->topicName(), language));
            return;
        }
    }
}

Qt::ItemFlags TopicsModel::extraFlags(const QModelIndex &index) const {
    return index.column() == 1 ? Qt::ItemIsEditable : Qt::NoItemFlags;
}

QStringList TopicsModel::currentKeys() const {
    QStringList keys;
    if (!dialog())
        return keys;
    for (const RobotLanguage &language : package()->supportedLanguages())
        keys.append(language.isoCode());
    for (const auto &[path, language] : dialog()->topics()) {
        if (!keys.contains(language.isoCode()))
            keys.append(language.isoCode());
    }
    return keys;
}

QStringList TopicsModel::titles() const {
    return {tr("Language"), tr("Topic file")};
}

ServicesModel::ServicesModel(Document &document, QObject *parent)
    : TableModel(document, parent) {
    start();
}

int ServicesModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : 3;
}

FieldPath ServicesModel::field(const QModelIndex &index) const {
    constexpr std::array names{"name", "execStart", "autoRun"}; // in the order of Column
    const FieldPath list = FieldPath().field("services");
    return Zel::PackageModel::itemPath(package(), list, index.row())
        .field(names.at(std::size_t(index.column())));
}

QVariant ServicesModel::data(const QModelIndex &index, int role) const {
    const Zel::ServiceInfoModel *service = package()->services().value(index.row());
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || !service)
        return {};
    if (index.column() == AutoRun) {
        if (role != Qt::CheckStateRole)
            return {};
        return service->isAutoRun() ? Qt::Checked : Qt::Unchecked;
    }
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return {};
    return fieldText(package(), field(index));
}

bool ServicesModel::setData(const QModelIndex &index, const QVariant &value, int role) {
    const Zel::ServiceInfoModel *service = package()->services().value(index.row());
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || !service)
        return false;
    if (role == Qt::CheckStateRole && index.column() == AutoRun) {
        document().edit({{Edit::Action::Set, field(index), !service->isAutoRun()}},
                        tr("Switch start of service %1").arg(service->name()));
        return true;
    }
    if (role != Qt::EditRole || index.column() == AutoRun)
        return false;
    const QString commandText =
        (index.column() == Name ? tr("Rename service %1") : tr("Set command of service %1"))
            .arg(service->name());
    // A new name is a new path.
    document().pushTyped([this, cell = QPersistentModelIndex(index), text = value.toString(),
                          commandText](bool isFinal) {
        return new Zel::PackageEditCommand(package(), {setText(field(cell), text)}, commandText,
                                           isFinal);
    });
    return true;
}

Qt::ItemFlags ServicesModel::extraFlags(const QModelIndex &index) const {
    return (index.column() == AutoRun ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable);
}

QStringList ServicesModel::currentKeys() const {
    return numbered(int(package()->services().size()));
}

QStringList ServicesModel::titles() const {
    return {tr("Name"), tr("Command"), tr("Starts with the robot")};
}

} // namespace Editor
