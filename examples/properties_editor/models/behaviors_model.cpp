#include "behaviors_model.h"

#include "widgets/marks.h"
#include "widgets/plain_text.h"

#include <packagemodel/package_info_utils.h>

namespace Editor {

using Zel::BehaviorInfoModel;
using Zel::PackageInfoModel;

BehaviorsModel::BehaviorsModel(Document &document, QObject *parent)
    : QAbstractTableModel(parent)
    , m_document(document) {
    connect(&document, &Document::packageReplaced, this, &BehaviorsModel::reset);
    connect(&document, &Document::issuesChanged, this, [this] {
        if (!m_behaviors.isEmpty())
            Q_EMIT dataChanged(index(0, Path), index(rowCount() - 1, Path),
                               {Qt::DecorationRole, Qt::ToolTipRole});
    });
    reset();
}

int BehaviorsModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(m_behaviors.size());
}

int BehaviorsModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : 2;
}

QVariant BehaviorsModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || !checkIndex(index))
        return {};
    const BehaviorInfoModel *behavior = m_behaviors.at(index.row());
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
        const QString text = index.column() == Path
                                 ? behavior->prettyPath()
                                 : behavior->name(Zel::Language::defaultLanguage());
        return role == Qt::ToolTipRole ? toolTipOf(text) : text;
    }
    const auto severity =
        index.column() == Path
            ? m_document.entrySeverity(QStringLiteral("behaviors"), behavior->path())
            : std::nullopt;
    if (role == Qt::DecorationRole && severity)
        return severityIcon(*severity);
    if (role == Qt::AccessibleDescriptionRole && severity)
        return severityName(*severity);
    return {};
}

QVariant BehaviorsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return section == Path ? tr("Path") : tr("Name");
    return QAbstractTableModel::headerData(section, orientation, role);
}

Qt::ItemFlags BehaviorsModel::flags(const QModelIndex &index) const {
    return index.isValid() ? QAbstractTableModel::flags(index) | Qt::ItemIsDragEnabled
                           : Qt::ItemIsDropEnabled;
}

BehaviorInfoModel *BehaviorsModel::behavior(int row) const {
    return m_behaviors.value(row);
}

int BehaviorsModel::rowOf(const BehaviorInfoModel *behavior) const {
    // Searches from the end, where most insertions and removals happen.
    return int(m_behaviors.lastIndexOf(const_cast<BehaviorInfoModel *>(behavior)));
}

void BehaviorsModel::reset() {
    beginResetModel();
    m_behaviors = m_document.package()->behaviors();
    for (BehaviorInfoModel *behavior : std::as_const(m_behaviors))
        watch(behavior);
    endResetModel();
    connect(m_document.package(), &PackageInfoModel::behaviorAdded, this, &BehaviorsModel::add);
    connect(m_document.package(), &PackageInfoModel::behaviorRemoved, this,
            &BehaviorsModel::remove);
    connect(m_document.package(), &PackageInfoModel::behaviorMoved, this, &BehaviorsModel::move);
}

void BehaviorsModel::add(BehaviorInfoModel *behavior) {
    beginInsertRows({}, rowCount(), rowCount());
    m_behaviors.append(behavior);
    watch(behavior);
    endInsertRows();
}

void BehaviorsModel::remove(BehaviorInfoModel *behavior) {
    const int row = rowOf(behavior);
    beginRemoveRows({}, row, row);
    m_behaviors.removeAt(row);
    endRemoveRows();
}

void BehaviorsModel::move(BehaviorInfoModel *, int from, int to) {
    // Qt expects the destination before the move.
    beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
    m_behaviors.move(from, to);
    endMoveRows();
}

void BehaviorsModel::watch(BehaviorInfoModel *behavior) {
    const auto changed = [this, behavior] { announce(behavior); };
    connect(behavior, &BehaviorInfoModel::pathUpdated, this, changed);
    connect(behavior, &BehaviorInfoModel::behaviorNameUpdated, this, changed);
}

void BehaviorsModel::announce(const BehaviorInfoModel *behavior) {
    const int row = rowOf(behavior);
    if (row >= 0)
        Q_EMIT dataChanged(index(row, Path), index(row, Name));
}

} // namespace Editor
