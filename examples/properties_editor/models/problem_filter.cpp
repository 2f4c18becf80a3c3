#include "problem_filter.h"

#include "problems_model.h"

#include <algorithm>

namespace Editor {

using Zel::PackageModel::Severity;

ProblemFilter::ProblemFilter(QAbstractItemModel *problems, QObject *parent)
    : QSortFilterProxyModel(parent) {
    setSourceModel(problems);
    setSortLocaleAware(true);
    setSortCaseSensitivity(Qt::CaseInsensitive);
}

void ProblemFilter::setText(const QString &part) {
    m_text = part;
    invalidateFilter();
}

void ProblemFilter::setShown(Severity severity, bool isShown) {
    if (isShown)
        m_hidden.remove(int(severity));
    else
        m_hidden.insert(int(severity));
    invalidateFilter();
}

bool ProblemFilter::filterAcceptsRow(int row, const QModelIndex &) const {
    const auto holds = [&](ProblemsModel::Column column, int role) {
        const QString text = sourceModel()->index(row, column).data(role).toString();
        return text.contains(m_text, Qt::CaseInsensitive);
    };
    const QModelIndex first = sourceModel()->index(row, ProblemsModel::Severity);
    if (m_hidden.contains(first.data(ProblemsModel::SeverityRole).toInt()))
        return false;
    return m_text.isEmpty() || holds(ProblemsModel::Text, Qt::DisplayRole) ||
           holds(ProblemsModel::Field, Qt::DisplayRole) ||
           holds(ProblemsModel::Field, ProblemsModel::PathRole) ||
           holds(ProblemsModel::Field, ProblemsModel::RuleRole);
}

// The worst severity first; equal ones stay in the order of the model.
bool ProblemFilter::lessThan(const QModelIndex &left, const QModelIndex &right) const {
    if (left.column() != ProblemsModel::Severity)
        return QSortFilterProxyModel::lessThan(left, right);
    return left.data(ProblemsModel::SeverityRole).toInt() >
           right.data(ProblemsModel::SeverityRole).toInt();
}

} // namespace Editor
