#include "entry_models.h"

#include "editor_commands.h"
#include "languages.h"

#include <packagemodel/dialog_commands.h>

#include <QSet>

namespace Editor {

using Zel::DialogInfoModel;
using Zel::RobotLanguage;
using Zel::ServiceInfoModel;

DialogsModel::DialogsModel(Document &document, QObject *parent)
    : TableModel(document, parent) {
    start();
}

int DialogsModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : 1;
}

QVariant DialogsModel::data(const QModelIndex &index, int role) const {
    const DialogInfoModel *dialog = package()->dialogs().value(index.row());
    if (!checkIndex(index) || !dialog || role != Qt::DisplayRole)
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
    if (!checkIndex(index) || !dialog() || (role != Qt::DisplayRole && role != Qt::EditRole))
        return {};
    return index.column() == 0 ? languageName(key(index)) : dialog()->topic(languageOf(key(index)));
}

bool TopicsModel::setData(const QModelIndex &index, const QVariant &value, int role) {
    if (!checkIndex(index) || !dialog() || role != Qt::EditRole || index.column() != 1)
        return false;
    document().pushTyped([package = package(), row = m_dialogRow, language = languageOf(key(index)),
                          text = value.toString()](bool isFinal) {
        return new Zel::DialogInfoModelTopicCommand(
            package, package->dialogs().at(row)->topicName(), language, text, isFinal);
    });
    return true;
}

void TopicsModel::removeTopic(int row) {
    const RobotLanguage language = languageOf(keys().value(row));
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

QVariant ServicesModel::data(const QModelIndex &index, int role) const {
    const ServiceInfoModel *service = package()->services().value(index.row());
    if (!checkIndex(index) || !service)
        return {};
    if (index.column() == AutoRun) {
        if (role != Qt::CheckStateRole)
            return {};
        return service->isAutoRun() ? Qt::Checked : Qt::Unchecked;
    }
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return {};
    return index.column() == Name ? service->name() : service->execStart();
}

bool ServicesModel::setData(const QModelIndex &index, const QVariant &value, int role) {
    if (!checkIndex(index))
        return false;
    if (role == Qt::CheckStateRole && index.column() == AutoRun) {
        document().push(new ServiceAutoRunCommand(package(), index.row()));
        return true;
    }
    if (role != Qt::EditRole || index.column() == AutoRun)
        return false;
    document().pushTyped([package = package(), row = index.row(), text = value.toString(),
                          field = index.column() == Name ? ServiceField::Name
                                                         : ServiceField::ExecStart](bool isFinal) {
        return newServiceFieldCommand(package, row, field, text, isFinal);
    });
    return true;
}

Qt::ItemFlags ServicesModel::extraFlags(const QModelIndex &index) const {
    return (index.column() == AutoRun ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable);
}

QString ServicesModel::refusal(const QModelIndex &index, const QString &text) const {
    const ServiceInfoModel *other = package()->service(text);
    if (index.column() == Name && other && other != package()->services().value(index.row()))
        return tr("There is another service with this name.");
    return {};
}

QStringList ServicesModel::currentKeys() const {
    return numbered(int(package()->services().size()));
}

QStringList ServicesModel::titles() const {
    return {tr("Name"), tr("Command"), tr("Starts with the robot")};
}

} // namespace Editor
