#include "entry_models.h"

#include "document/field_edits.h"
#include "widgets/icons.h"
#include "widgets/marks.h"

#include <packagemodel/language_name.h>

#include <algorithm>
#include <array>

namespace Editor {

using Tano::FieldPath;
using Zel::DialogInfoModel;
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
    if (!index.isValid() || !checkIndex(index) || !dialog)
        return {};
    if (role == Qt::DisplayRole)
        return dialog->topicName();
    const auto severity =
        role == Qt::DecorationRole
            ? document().entrySeverity(QStringLiteral("dialogs"), dialog->topicName())
            : std::nullopt;
    return severity ? severityIcon(*severity) : QVariant();
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
    if (!index.isValid() || !checkIndex(index) || !dialog())
        return {};
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return index.column() == 0 ? QVariant() : fileData(index, role);
    return index.column() == 0 ? Zel::PackageModel::languageName(languageInUse(key(index)))
                               : fieldText(package(), field(index));
}

// Marks missing files, which are issues.
QVariant TopicsModel::fileData(const QModelIndex &index, int role) const {
    if (const auto mark = Mark::ofIssue(document().issueAt(field(index))))
        return markData(mark, role);
    const bool exists =
        !document().fileName().isEmpty() && !fieldText(package(), field(index)).isEmpty();
    if (exists && role == Qt::DecorationRole)
        return iconOf(Symbol::Check);
    if (exists && (role == Qt::ToolTipRole || role == Qt::AccessibleDescriptionRole))
        return tr("The file is beside the manifest.");
    return {};
}

FieldPath TopicsModel::fieldOf(const QModelIndex &index) const {
    const FieldPath list = FieldPath().field("dialogs");
    const FieldPath entry = Zel::PackageModel::itemPath(package(), list, m_dialogRow);
    return entry.isEmpty() ? entry : FieldPath(entry).field("topics").key(Zel::toUtf8(key(index)));
}

void TopicsModel::setFile(int row, const QString &file) {
    document().edit({setText(field(index(row, 1)), file)});
}

void TopicsModel::removeTopic(int row) {
    const FieldPath topic = field(index(row, 1));
    if (!topic.isEmpty() && Zel::PackageModel::value(package(), topic))
        document().edit({{Edit::Action::Remove, topic}});
}

Qt::ItemFlags TopicsModel::extraFlags(const QModelIndex &index) const {
    return index.column() == 1 ? Qt::ItemIsEditable : Qt::NoItemFlags;
}

QStringList TopicsModel::currentKeys() const {
    QStringList keys;
    if (!dialog())
        return keys;
    for (const Zel::RobotLanguage &language : package()->supportedLanguages())
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

namespace {
constexpr std::array names{"name", "execStart", "autoRun"}; // in the order of Column
}

ServicesModel::ServicesModel(Document &document, QObject *parent)
    : TableModel(document, parent) {
    start();
}

int ServicesModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : 3;
}

FieldPath ServicesModel::fieldOf(const QModelIndex &index) const {
    const FieldPath list = FieldPath().field("services");
    return Zel::PackageModel::itemPath(package(), list, index.row())
        .field(names.at(std::size_t(index.column())));
}

QVariant ServicesModel::data(const QModelIndex &index, int role) const {
    const Zel::ServiceInfoModel *service = package()->services().value(index.row());
    if (!index.isValid() || !checkIndex(index) || !service)
        return {};
    if (index.column() == AutoRun && role == Qt::CheckStateRole)
        return service->isAutoRun() ? Qt::Checked : Qt::Unchecked;
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return markData(Mark::ofIssue(document().issueAt(field(index))), role);
    return index.column() == AutoRun ? QVariant() : fieldText(package(), field(index));
}

ServicesModel::Column ServicesModel::columnOf(const QString &field) const {
    const auto found = std::find_if(names.begin(), names.end(),
                                    [&](const char *name) { return field == QLatin1String(name); });
    return found == names.end() ? Name : Column(found - names.begin());
}

bool ServicesModel::setData(const QModelIndex &index, const QVariant &value, int role) {
    if (role != Qt::CheckStateRole || !checkIndex(index, CheckIndexOption::IndexIsValid) ||
        index.column() != AutoRun)
        return TableModel::setData(index, value, role);
    const bool isAutoRun = value.toInt() == Qt::Checked;
    document().edit({{Edit::Action::Set, field(index), isAutoRun}});
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
