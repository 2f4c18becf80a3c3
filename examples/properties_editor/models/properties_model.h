#pragma once

#include "table_model.h"

namespace Editor {

/// The properties of one service, by name.
class PropertiesModel : public TableModel {
    Q_OBJECT

public:
    enum Column { Name, Value };

    explicit PropertiesModel(Document &document, QObject *parent = nullptr);
    /// Shows the service in a row of the package's list; -1 for none.
    void setService(int row);
    bool hasService() const { return service() != nullptr; }

    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    /// Also renames properties, unless the service already has the new name.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    /// Adds an empty property and returns its name.
    QString add();
    void remove(const QVector<int> &rows);

protected:
    Tano::FieldPath fieldOf(const QModelIndex &index) const override;
    QStringList currentKeys() const override;
    QStringList titles() const override;
    Qt::ItemFlags extraFlags(const QModelIndex &index) const override;

private:
    const Zel::ServiceInfoModel *service() const;
    Tano::FieldPath property(const QString &name) const;
    void rename(int row, const QString &name);

    int m_serviceRow = -1;
};

} // namespace Editor
