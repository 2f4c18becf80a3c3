#include "properties_model.h"

#include "document/field_edits.h"
#include "widgets/marks.h"

namespace Editor {

using Tano::FieldPath;
using Zel::PackageModel::Edit;

PropertiesModel::PropertiesModel(Document &document, QObject *parent)
    : TableModel(document, parent) {
    start();
}

const Zel::ServiceInfoModel *PropertiesModel::service() const {
    return package()->services().value(m_serviceRow);
}

void PropertiesModel::setService(int row) {
    m_serviceRow = row;
    start();
}

int PropertiesModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : 2;
}

FieldPath PropertiesModel::property(const QString &name) const {
    const FieldPath list = FieldPath().field("services");
    const FieldPath entry = Zel::PackageModel::itemPath(package(), list, m_serviceRow);
    return entry.isEmpty() ? entry : FieldPath(entry).field("properties").key(Zel::toUtf8(name));
}

FieldPath PropertiesModel::fieldOf(const QModelIndex &index) const {
    return index.column() == Value ? property(key(index)) : FieldPath();
}

QVariant PropertiesModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || !checkIndex(index) || !service())
        return {};
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return markData(Mark::ofIssue(document().issueAt(field(index))), role);
    return index.column() == Name ? key(index) : fieldText(package(), field(index));
}

bool PropertiesModel::setData(const QModelIndex &index, const QVariant &value, int role) {
    if (role != Qt::EditRole || !checkIndex(index, CheckIndexOption::IndexIsValid) ||
        index.column() != Name)
        return TableModel::setData(index, value, role);
    const QString name = value.toString();
    if (name == key(index))
        return true;
    QString reason;
    if (name.isEmpty())
        reason = tr("A property needs a name.");
    else if (keys().contains(name))
        reason = tr("The service has “%1” already.").arg(name);
    if (reason.isEmpty())
        rename(index.row(), name);
    else
        Q_EMIT document().editRefused(reason);
    return reason.isEmpty();
}

void PropertiesModel::rename(int row, const QString &name) {
    const QString previous = keys().at(row);
    const FieldPath from = property(previous);
    const QString value = fieldText(package(), from);
    expectKey(row, name);
    document().edit({{Edit::Action::Remove, from}, setText(property(name), value)},
                    tr("Rename property “%1”").arg(previous));
    sync();
}

QString PropertiesModel::add() {
    QString name = freeName(QStringLiteral("property"),
                            [this](const QString &taken) { return keys().contains(taken); });
    document().edit({setText(property(name), {})});
    return name;
}

void PropertiesModel::remove(const QVector<int> &rows) {
    Zel::PackageModel::Edits edits;
    for (const int row : rows)
        edits.append({Edit::Action::Remove, property(keys().at(row))});
    document().edit(edits);
}

Qt::ItemFlags PropertiesModel::extraFlags(const QModelIndex &) const {
    return Qt::ItemIsEditable;
}

QStringList PropertiesModel::currentKeys() const {
    return service() ? service()->properties().keys() : QStringList();
}

QStringList PropertiesModel::titles() const {
    return {tr("Name"), tr("Value")};
}

} // namespace Editor
