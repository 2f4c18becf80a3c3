#include "requirements_model.h"

#include "document/field_edits.h"
#include "widgets/marks.h"

#include <algorithm>

namespace Editor {

using Tano::FieldPath;

namespace {

const QMap<QString, QString> &robots() {
    return Zel::RobotRequirement::prettyRobotNames();
}

} // namespace

RequirementsModel::RequirementsModel(Document &document, Kind kind, QObject *parent)
    : TableModel(document, parent)
    , m_kind(kind) {
    start();
}

const std::vector<RequirementsModel::Column> &RequirementsModel::columns() const {
    static const std::vector<Column> robot{
        {"model", QT_TR_NOOP("Robot")},
        {"minHeadVersion", QT_TR_NOOP("Lowest head")},
        {"maxHeadVersion", QT_TR_NOOP("Highest head")},
        {"minBodyVersion", QT_TR_NOOP("Lowest body")},
        {"maxBodyVersion", QT_TR_NOOP("Highest body")},
    };
    static const std::vector<Column> brio{
        {"minVersion", QT_TR_NOOP("Lowest version")},
        {"maxVersion", QT_TR_NOOP("Highest version")},
    };
    return m_kind == Kind::Robot ? robot : brio;
}

int RequirementsModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(columns().size());
}

bool RequirementsModel::isModelColumn(const QModelIndex &index) const {
    return m_kind == Kind::Robot && index.column() == 0;
}

FieldPath RequirementsModel::list() const {
    return FieldPath().field(m_kind == Kind::Robot ? "robotRequirements" : "brioRequirements");
}

FieldPath RequirementsModel::fieldOf(const QModelIndex &index) const {
    return list().index(index.row()).field(columns().at(std::size_t(index.column())).field);
}

QVariant RequirementsModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || !checkIndex(index))
        return {};
    if (role != Qt::EditRole && role != Qt::DisplayRole)
        return markData(Mark::ofIssue(document().issueAt(field(index))), role);
    const QString text = fieldText(package(), field(index));
    if (role != Qt::DisplayRole || !isModelColumn(index))
        return text;
    return text.isEmpty() ? tr("Choose a robot") : robots().value(text, text);
}

bool RequirementsModel::setData(const QModelIndex &index, const QVariant &value, int role) {
    if (role != Qt::EditRole || !checkIndex(index, CheckIndexOption::IndexIsValid) ||
        !isModelColumn(index))
        return TableModel::setData(index, value, role);
    if (value.toString() != fieldText(package(), field(index)))
        document().edit({setText(field(index), value.toString())});
    return true;
}

Qt::ItemFlags RequirementsModel::extraFlags(const QModelIndex &) const {
    return Qt::ItemIsEditable;
}

QVector<QPair<QString, QString>> RequirementsModel::choices(const QModelIndex &index) const {
    QVector<QPair<QString, QString>> choices;
    if (!isModelColumn(index))
        return choices;
    // A requirement without a model is an error.
    for (auto robot = robots().begin(); robot != robots().end(); ++robot) {
        if (!robot.key().isEmpty())
            choices.append({robot.key(), robot.value()});
    }
    const QString current = index.data(Qt::EditRole).toString();
    if (!robots().contains(current))
        choices.append({current, current});
    return choices;
}

void RequirementsModel::add() {
    if (m_kind == Kind::Robot)
        document().edit({appended(list(), Zel::RobotRequirement())});
    else
        document().edit({appended(list(), Zel::BrioRequirement())});
}

int RequirementsModel::columnOf(const QString &field) const {
    const auto found = std::find_if(columns().begin(), columns().end(), [&](const Column &column) {
        return field == QLatin1String(column.field);
    });
    return found == columns().end() ? -1 : int(found - columns().begin());
}

QStringList RequirementsModel::currentKeys() const {
    return numbered(int(m_kind == Kind::Robot ? package()->robotRequirements().size()
                                              : package()->brioRequirements().size()));
}

QStringList RequirementsModel::titles() const {
    QStringList titles;
    for (const Column &column : columns())
        titles.append(tr(column.title));
    return titles;
}

} // namespace Editor
