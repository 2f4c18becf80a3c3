#include "problems_model.h"

#include "field_place.h"
#include "marks.h"
#include "plain_text.h"

#include <QStringBuilder>

namespace Editor {

using Zel::PackageModel::Issue;

ProblemsModel::ProblemsModel(Document &document, QObject *parent)
    : TableModel(document, parent) {
    start();
}

int ProblemsModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : 3;
}

QVariant ProblemsModel::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index) || index.row() >= document().issues().size())
        return {};
    const Issue &issue = document().issues().at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        switch (index.column()) {
        case Severity:
            return severityName(issue.severity);
        case Text:
            return Mark::ofIssue(issue)->text;
        default:
            return FieldPlace::parse(issue.path).label();
        }
    case Qt::DecorationRole:
        return index.column() == Severity ? severityIcon(issue.severity) : QVariant();
    case Qt::ToolTipRole:
        return toolTipOf(issue.plainText());
    case PathRole:
        return issue.path;
    default:
        return {};
    }
}

QStringList ProblemsModel::currentKeys() const {
    QStringList keys;
    for (const Issue &issue : document().issues())
        keys.append(issue.id % u' ' % issue.path);
    return keys;
}

QStringList ProblemsModel::titles() const {
    return {tr("Severity"), tr("Problem"), tr("Field")};
}

} // namespace Editor
