#include "string_list_model.h"

namespace Editor {

StringListModel::StringListModel(Document &document, const QString &title, QObject *parent)
    : TableModel(document, parent)
    , m_title(title) {
    start();
}

void StringListModel::setSource(const ListSource &source) {
    m_source = source;
    sync();
}

QStringList StringListModel::items() const {
    return m_source.read ? m_source.read() : QStringList();
}

int StringListModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : 1;
}

QVariant StringListModel::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) ||
        (role != Qt::DisplayRole && role != Qt::EditRole))
        return {};
    return items().value(index.row());
}

bool StringListModel::setData(const QModelIndex &index, const QVariant &value, int role) {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role != Qt::EditRole || !m_source.set)
        return false;
    document().pushTyped([set = m_source.set, row = index.row(), text = value.toString()](
                             bool isFinal) { return set(row, text, isFinal); });
    return true;
}

Qt::ItemFlags StringListModel::extraFlags(const QModelIndex &) const {
    return m_source.set ? Qt::ItemIsEditable : Qt::NoItemFlags;
}

QString StringListModel::refusal(const QModelIndex &index, const QString &text) const {
    const QStringList all = items();
    const auto other = all.indexOf(text);
    return other < 0 || other == index.row() ? QString()
                                             : tr("The list has “%1” already.").arg(text);
}

QString StringListModel::additionRefusal(const QString &text) const {
    return items().contains(text) ? tr("The list has “%1” already.").arg(text) : QString();
}

void StringListModel::add(const QString &text) {
    if (m_source.add)
        document().push(m_source.add(text));
}

void StringListModel::remove(int row) {
    if (m_source.remove && row >= 0 && row < rowCount())
        document().push(m_source.remove(row));
}

QStringList StringListModel::currentKeys() const {
    return numbered(int(items().size()));
}

QStringList StringListModel::titles() const {
    return {m_title};
}

} // namespace Editor
