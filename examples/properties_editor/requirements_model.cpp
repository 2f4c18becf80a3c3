#include "requirements_model.h"

#include "field_place.h"
#include "marks.h"
#include "text_field.h"

namespace Editor {
namespace {

const QMap<QString, QString> &robots() {
    return Zel::RobotRequirement::prettyRobotNames();
}

} // namespace

RequirementsModel::RequirementsModel(Document &document, Kind kind, QObject *parent)
    : TableModel(document, parent)
    , m_kind(kind)
    , m_fields(kind == Kind::Robot ? robotRequirementFields() : brioRequirementFields()) {
    start();
}

int RequirementsModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(m_fields.size());
}

bool RequirementsModel::isModelColumn(const QModelIndex &index) const {
    return m_kind == Kind::Robot && index.column() == 0;
}

QVariant RequirementsModel::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index))
        return {};
    const RequirementField &field = m_fields.at(std::size_t(index.column()));
    const QString text = field.read(*package(), index.row());
    if (role == Qt::EditRole)
        return text;
    if (role == Qt::DisplayRole)
        return isModelColumn(index) ? robots().value(text, text) : text;
    return markData(
        Mark::ofIssue(document().issueAt(requirementPath(field.list, index.row(), field.name))),
        role);
}

bool RequirementsModel::setData(const QModelIndex &index, const QVariant &value, int role) {
    if (role != Qt::EditRole || !checkIndex(index))
        return false;
    const RequirementField &field = m_fields.at(std::size_t(index.column()));
    const auto make = [=, &field, package = package(), row = index.row(),
                       text = value.toString()](bool isFinal) {
        return newRequirementFieldCommand(package, field, row, text, isFinal);
    };
    if (!isModelColumn(index))
        document().pushTyped(make);
    else if (value.toString() != field.read(*package(), index.row()))
        document().push(make(true));
    return true;
}

Qt::ItemFlags RequirementsModel::extraFlags(const QModelIndex &) const {
    return Qt::ItemIsEditable;
}

QString RequirementsModel::refusal(const QModelIndex &index, const QString &text) const {
    return isModelColumn(index) ? QString() : versionRefusal(text);
}

QVector<QPair<QString, QString>> RequirementsModel::choices(const QModelIndex &index) const {
    QVector<QPair<QString, QString>> choices;
    if (!isModelColumn(index))
        return choices;
    for (auto robot = robots().begin(); robot != robots().end(); ++robot)
        choices.append({robot.key(), robot.value()});
    const QString current = index.data(Qt::EditRole).toString();
    if (!robots().contains(current))
        choices.append({current, current});
    return choices;
}

void RequirementsModel::add() {
    document().push(m_kind == Kind::Robot ? newAddRobotRequirementCommand(package())
                                          : newAddBrioRequirementCommand(package()));
}

void RequirementsModel::remove(int row) {
    if (row < 0 || row >= rowCount())
        return;
    document().push(m_kind == Kind::Robot ? newRemoveRobotRequirementCommand(package(), row)
                                          : newRemoveBrioRequirementCommand(package(), row));
}

int RequirementsModel::columnOf(const QString &field) const {
    for (std::size_t column = 0; column < m_fields.size(); ++column) {
        if (field == QLatin1String(m_fields.at(column).name))
            return int(column);
    }
    return -1;
}

QStringList RequirementsModel::currentKeys() const {
    return numbered(int(m_kind == Kind::Robot ? package()->robotRequirements().size()
                                              : package()->brioRequirements().size()));
}

QStringList RequirementsModel::titles() const {
    if (m_kind == Kind::Brio)
        return {tr("Lowest version"), tr("Highest version")};
    return {tr("Robot"), tr("Lowest head"), tr("Highest head"), tr("Lowest body"),
            tr("Highest body")};
}

} // namespace Editor
