#include "string_list_model.h"

#include "document/field_edits.h"
#include "widgets/marks.h"

#include <utility>

namespace Editor {

using Tano::FieldPath;

StringListModel::StringListModel(Document &document, const QString &title,
                                 std::function<FieldPath()> list, QObject *parent)
    : TableModel(document, parent)
    , m_title(title)
    , m_list(std::move(list)) {
    start();
}

QStringList StringListModel::items() const {
    QStringList items;
    for (const auto &entry : Zel::PackageModel::entries(package(), list()))
        items.append(Zel::PackageModel::printed(entry));
    return items;
}

int StringListModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : 1;
}

QVariant StringListModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || !checkIndex(index))
        return {};
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return markData(Mark::ofIssue(document().issueAt(field(index))), role);
    return items().value(index.row());
}

FieldPath StringListModel::fieldOf(const QModelIndex &index) const {
    return Zel::PackageModel::itemPath(package(), list(), index.row());
}

Qt::ItemFlags StringListModel::extraFlags(const QModelIndex &) const {
    return Qt::ItemIsEditable;
}

QString StringListModel::refusal(const QModelIndex &index, const QString &text) const {
    const QStringList all = items();
    const auto other = all.indexOf(text);
    return other < 0 || other == index.row() ? TableModel::refusal(index, text)
                                             : tr("The list has “%1” already.").arg(text);
}

QString StringListModel::additionRefusal(const QString &text) const {
    return items().contains(text) ? tr("The list has “%1” already.").arg(text)
                                  : Zel::PackageModel::refusal(package(), appended(list(), text));
}

void StringListModel::add(const QStringList &texts) {
    Zel::PackageModel::Edits edits;
    for (const QString &text : texts)
        edits.append(appended(list(), text));
    document().edit(edits);
}

QStringList StringListModel::currentKeys() const {
    return numbered(int(items().size()));
}

QStringList StringListModel::titles() const {
    return {m_title};
}

} // namespace Editor
