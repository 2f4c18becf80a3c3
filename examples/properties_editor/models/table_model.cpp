#include "table_model.h"

#include "document/field_edits.h"

#include <QSet>

namespace Editor {

TableModel::TableModel(Document &document, QObject *parent)
    : QAbstractTableModel(parent)
    , m_document(document) {
    connect(&document, &Document::packageReplaced, this, &TableModel::reset);
    connect(&document, &Document::edited, this, &TableModel::sync);
}

int TableModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(m_keys.size());
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return titles().value(section);
    return QAbstractTableModel::headerData(section, orientation, role);
}

Qt::ItemFlags TableModel::flags(const QModelIndex &index) const {
    // In ordered lists, rows are dragged and dropped between other rows.
    return index.isValid()
               ? QAbstractTableModel::flags(index) | Qt::ItemIsDragEnabled | extraFlags(index)
               : Qt::ItemIsDropEnabled;
}

Qt::ItemFlags TableModel::extraFlags(const QModelIndex &) const {
    return Qt::NoItemFlags;
}

bool TableModel::setData(const QModelIndex &index, const QVariant &value, int role) {
    return role == Qt::EditRole && checkIndex(index, CheckIndexOption::IndexIsValid) &&
           flags(index).testFlag(Qt::ItemIsEditable) &&
           document().type(field(index), value.toString()).isEmpty();
}

Tano::FieldPath TableModel::field(const QModelIndex &index) const {
    return index.isValid() ? fieldOf(index) : Tano::FieldPath();
}

Tano::FieldPath TableModel::fieldOf(const QModelIndex &) const {
    return {};
}

QString TableModel::refusal(const QModelIndex &index, const QString &text) const {
    const Tano::FieldPath path = field(index);
    return path.isEmpty() ? QString() : textRefusal(package(), path, text);
}

QVector<QPair<QString, QString>> TableModel::choices(const QModelIndex &) const {
    return {};
}

QStringList TableModel::numbered(int count) {
    QStringList keys;
    for (int i = 0; i < count; ++i)
        keys.append(QString::number(i));
    return keys;
}

void TableModel::reset() {
    beginResetModel();
    packageReplaced();
    m_keys = currentKeys();
    endResetModel();
}

void TableModel::sync() {
    setKeys(currentKeys());
    if (!m_keys.isEmpty())
        Q_EMIT dataChanged(index(0, 0), index(int(m_keys.size()) - 1, columnCount() - 1));
}

void TableModel::setKeys(const QStringList &keys) {
    const QSet<QString> wanted(keys.begin(), keys.end());
    for (int row = int(m_keys.size()) - 1; row >= 0; --row) {
        if (wanted.contains(m_keys.at(row)))
            continue;
        beginRemoveRows({}, row, row);
        m_keys.removeAt(row);
        endRemoveRows();
    }
    const QSet<QString> present(m_keys.begin(), m_keys.end());
    for (int row = 0; row < keys.size(); ++row) {
        const QString &key = keys.at(row);
        if (m_keys.value(row) == key && row < m_keys.size())
            continue;
        if (present.contains(key)) {
            const int from = int(m_keys.indexOf(key, row));
            beginMoveRows({}, from, from, {}, row);
            m_keys.move(from, row);
            endMoveRows();
        } else {
            beginInsertRows({}, row, row);
            m_keys.insert(row, key);
            endInsertRows();
        }
    }
}

} // namespace Editor
