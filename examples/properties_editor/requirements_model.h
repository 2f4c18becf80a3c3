#pragma once

#include "editor_commands.h"
#include "table_model.h"

namespace Editor {

/// The robot or the Brio requirements of the package, one row each, with a column for each field.
class RequirementsModel : public TableModel {
    Q_OBJECT

public:
    enum class Kind { Robot, Brio };

    RequirementsModel(Document &document, Kind kind, QObject *parent = nullptr);

    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QString refusal(const QModelIndex &index, const QString &text) const override;
    QVector<QPair<QString, QString>> choices(const QModelIndex &index) const override;

    void add();
    void remove(int row);
    /// The column of the field with that name in the paths of issues; -1 when there is none.
    int columnOf(const QString &field) const;

protected:
    QStringList currentKeys() const override;
    QStringList titles() const override;
    Qt::ItemFlags extraFlags(const QModelIndex &index) const override;

private:
    bool isModelColumn(const QModelIndex &index) const;

    Kind m_kind;
    const std::vector<RequirementField> &m_fields;
};

} // namespace Editor
