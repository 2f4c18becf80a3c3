#include "problems_model.h"

#include "document/problem_order.h"
#include "widgets/marks.h"
#include "widgets/plain_text.h"

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
    connect(&document, &Document::issuesChanged, this, [this] { // also by saving
        order();
        sync();
    });
    order();
    start();
}

void ProblemsModel::order() {
    m_ordered.clear();
    m_indexes.clear();
    QHash<QString, int> counts; // an element can have several unknown children
    const auto &issues = document().issues();
    for (const int index : problemOrder(*package(), issues)) {
        const Issue &issue = issues.at(index);
        QString key = issue.id % u' ' % issue.path % u' ';
        key += QString::number(counts[key]++);
        m_ordered.append(key);
        m_indexes.insert(key, index);
    }
}

const Issue *ProblemsModel::issueAt(int row) const {
    const int index = m_indexes.value(keys().value(row), -1);
    return index >= 0 && index < document().issues().size() ? &document().issues().at(index)
                                                            : nullptr;
}

int ProblemsModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : 3;
}

QVariant ProblemsModel::data(const QModelIndex &index, int role) const {
    const Issue *shown = index.isValid() && checkIndex(index) ? issueAt(index.row()) : nullptr;
    if (!shown)
        return {};
    const Issue &issue = *shown;
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

QStringList ProblemsModel::titles() const {
    return {tr("Severity"), tr("Problem"), tr("Field")};
}

} // namespace Editor
