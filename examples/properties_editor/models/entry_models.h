#pragma once

#include "table_model.h"

#include <QPointer>

namespace Editor {

/// The dialogs of the package, by topic name.
class DialogsModel : public TableModel {
    Q_OBJECT

public:
    explicit DialogsModel(Document &document, QObject *parent = nullptr);
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

protected:
    QStringList currentKeys() const override;
    QStringList titles() const override;
};

/// The topic files of one dialog: a row per language that the package supports or the dialog has a
/// file for.
class TopicsModel : public TableModel {
    Q_OBJECT

public:
    explicit TopicsModel(Document &document, QObject *parent = nullptr);
    /// Shows the dialog in a row of the package's list; -1 for none.
    void setDialog(int row);

    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    /// Sets the topic file of a row.
    void setFile(int row, const QString &file);
    /// Removes the topic file of a row.
    void removeTopic(int row);

protected:
    Tano::FieldPath fieldOf(const QModelIndex &index) const override;
    QStringList currentKeys() const override;
    QStringList titles() const override;
    Qt::ItemFlags extraFlags(const QModelIndex &index) const override;

private:
    const Zel::DialogInfoModel *dialog() const;
    QVariant fileData(const QModelIndex &index, int role) const;

    int m_dialogRow = -1;
};

/// The services of the package.
class ServicesModel : public TableModel {
    Q_OBJECT

public:
    enum Column { Name, ExecStart, AutoRun };

    explicit ServicesModel(Document &document, QObject *parent = nullptr);
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    /// The column of a service's field, by its name in paths; the first one for other names.
    Column columnOf(const QString &field) const;

protected:
    Tano::FieldPath fieldOf(const QModelIndex &index) const override;
    QStringList currentKeys() const override;
    QStringList titles() const override;
    Qt::ItemFlags extraFlags(const QModelIndex &index) const override;
};

} // namespace Editor
