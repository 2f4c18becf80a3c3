#pragma once

#include "table_model.h"

namespace Editor {

/// The robot or Brio requirements of the package, with a row each and a column per field.
class RequirementsModel : public TableModel {
    Q_OBJECT

public:
    enum class Kind { Robot, Brio };

    RequirementsModel(Document &document, Kind kind, QObject *parent = nullptr);

    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QVector<QPair<QString, QString>> choices(const QModelIndex &index) const override;

    void add();
    /// The column of a requirement's field, by its name in paths, or -1.
    int columnOf(const QString &field) const;
    /// The path of the list.
    Tano::FieldPath list() const;

protected:
    Tano::FieldPath fieldOf(const QModelIndex &index) const override;
    QStringList currentKeys() const override;
    QStringList titles() const override;
    Qt::ItemFlags extraFlags(const QModelIndex &index) const override;

private:
    bool isModelColumn(const QModelIndex &index) const;

    struct Column {
        const char *field;
        const char *title;
    };
    const std::vector<Column> &columns() const;

    Kind m_kind;
};

} // namespace Editor
