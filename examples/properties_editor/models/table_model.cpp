#include "table_model.h"

#include "document/field_edits.h"

#include <QSet>

namespace Editor {
namespace {

// The number of keys in a row, from an index on, that are not in a set.
int runAt(int index, const QStringList &keys, const QSet<QString> &others) {
    int end = index;
    while (end < keys.size() && !others.contains(keys.at(end)))
        ++end;
    return end - index;
}

int runsBeyond(const QSet<QString> &others, const QStringList &keys) {
    int runs = 0;
    for (int i = 0; i < keys.size(); ++i) {
        const int count = runAt(i, keys, others);
        runs += count > 0 ? 1 : 0;
        i += count;
    }
    return runs;
}

// The number of keys that are in both lists at different places among these.
int moved(const QStringList &before, const QSet<QString> &present, const QStringList &after,
          const QSet<QString> &wanted) {
    int count = 0;
    for (int from = 0, to = 0;; ++from, ++to) {
        while (from < before.size() && !wanted.contains(before.at(from)))
            ++from;
        while (to < after.size() && !present.contains(after.at(to)))
            ++to;
        if (from == before.size() || to == after.size())
            return count;
        count += before.at(from) != after.at(to) ? 1 : 0;
    }
}

} // namespace

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
    const QSet<QString> present(m_keys.begin(), m_keys.end());
    // A sorted view takes time proportional to its rows for each step.
    constexpr int manySteps = 20;
    if (runsBeyond(wanted, m_keys) + runsBeyond(present, keys) +
            moved(m_keys, present, keys, wanted) >
        manySteps) {
        beginResetModel();
        m_keys = keys;
        endResetModel();
        return;
    }
    removeRowsBeyond(wanted);
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
            const int count = runAt(row, keys, present);
            beginInsertRows({}, row, row + count - 1);
            m_keys = m_keys.mid(0, row) + keys.mid(row, count) + m_keys.mid(row);
            endInsertRows();
            row += count - 1;
        }
    }
}

void TableModel::removeRowsBeyond(const QSet<QString> &wanted) {
    for (int last = int(m_keys.size()) - 1; last >= 0; --last) {
        if (wanted.contains(m_keys.at(last)))
            continue;
        int first = last;
        while (first > 0 && !wanted.contains(m_keys.at(first - 1)))
            --first;
        beginRemoveRows({}, first, last);
        m_keys.erase(m_keys.begin() + first, m_keys.begin() + last + 1);
        endRemoveRows();
        last = first;
    }
}

} // namespace Editor
