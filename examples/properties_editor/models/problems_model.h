#pragma once

#include "table_model.h"

#include <QHash>

namespace Editor {

/// The issues of the package, one row each, in the order of problemOrder().
class ProblemsModel : public TableModel {
    Q_OBJECT

public:
    enum Column { Severity, Text, Field };
    /// The path of the field at fault.
    static constexpr int PathRole = Qt::UserRole;
    /// The id of the rule.
    static constexpr int RuleRole = Qt::UserRole + 1;
    static constexpr int SeverityRole = Qt::UserRole + 2;

    explicit ProblemsModel(Document &document, QObject *parent = nullptr);

    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    /// The issue in a row; null for none.
    const Zel::PackageModel::Issue *issueAt(int row) const;

protected:
    QStringList currentKeys() const override { return m_ordered; }
    QStringList titles() const override;

private:
    void order();

    QStringList m_ordered;         // keys of the issues
    QHash<QString, int> m_indexes; // of the document's issues by key
};

} // namespace Editor
