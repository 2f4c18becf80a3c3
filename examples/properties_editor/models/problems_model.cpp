#include "problems_model.h"

#include "widgets/marks.h"
#include "widgets/plain_text.h"

#include <QHash>
#include <QStringBuilder>

namespace Editor {

using Zel::PackageModel::Issue;

namespace {

QString fieldLabel(const QString &printedPath) {
    const auto path = Tano::FieldPath::parse(Zel::toUtf8(printedPath));
    return path ? Zel::PackageModel::label(*path) : printedPath;
}

} // namespace

ProblemsModel::ProblemsModel(Document &document, QObject *parent)
    : TableModel(document, parent) {
    connect(&document, &Document::issuesChanged, this, &ProblemsModel::sync); // also by saving
    start();
}

int ProblemsModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : 3;
}

QVariant ProblemsModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || !checkIndex(index) || index.row() >= document().issues().size())
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
            return fieldLabel(issue.path);
        }
    case Qt::DecorationRole:
        return index.column() == Severity ? severityIcon(issue.severity) : QVariant();
    case Qt::ToolTipRole:
        return toolTipOf(issue.plainText());
    case PathRole:
        return issue.path;
    case RuleRole:
        return issue.id;
    case SeverityRole:
        return int(issue.severity);
    default:
        return {};
    }
}

QStringList ProblemsModel::currentKeys() const {
    QStringList keys;
    QHash<QString, int> counts; // an element can have several unknown children
    for (const Issue &issue : document().issues()) {
        const QString key = issue.id % u' ' % issue.path % u' ';
        keys.append(key % QString::number(counts[key]++));
    }
    return keys;
}

QStringList ProblemsModel::titles() const {
    return {tr("Severity"), tr("Problem"), tr("Field")};
}

} // namespace Editor
