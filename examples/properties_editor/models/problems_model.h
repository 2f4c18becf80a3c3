#pragma once

#include "table_model.h"

namespace Editor {

/// The issues of the package, one row each, in the order of the checks.
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

protected:
    QStringList currentKeys() const override;
    QStringList titles() const override;
};

} // namespace Editor
