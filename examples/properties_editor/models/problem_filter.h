#pragma once

#include <packagemodel/package_issues.h>

#include <QSet>
#include <QSortFilterProxyModel>

namespace Editor {

/// The problems of a ProblemsModel that the user wants to see, in the order of a column or, with
/// sort(-1), of the model.
class ProblemFilter : public QSortFilterProxyModel {
    Q_OBJECT

public:
    explicit ProblemFilter(QAbstractItemModel *problems, QObject *parent = nullptr);

    /// Shows problems with a part in their message, field or rule, in any case.
    void setText(const QString &part);
    void setShown(Zel::PackageModel::Severity severity, bool isShown);

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    QString m_text;
    QSet<int> m_hidden; // severities
};

} // namespace Editor
