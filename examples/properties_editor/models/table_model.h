#pragma once

#include "document/document.h"

#include <QAbstractTableModel>
#include <QStringList>

namespace Editor {

/// The base of the small tables over the package: after every edit it brings its rows up to date,
/// with the insertions, removals and moves that lead there, so that views keep what is selected.
class TableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

    Qt::ItemFlags flags(const QModelIndex &index) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    /// Types a text into the field of an editable cell.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    /// The field of the package that a cell edits as a text; the empty path for other cells.
    Tano::FieldPath field(const QModelIndex &index) const;
    /// Why a cell cannot take a text; empty when it can.
    virtual QString refusal(const QModelIndex &index, const QString &text) const;
    /// What may be chosen for a cell, as pairs of the value and its text; empty where anything
    /// goes.
    virtual QVector<QPair<QString, QString>> choices(const QModelIndex &index) const;

    const QStringList &keys() const { return m_keys; }
    QString key(const QModelIndex &index) const { return m_keys.value(index.row()); }

    /// Brings rows and cells up to date.
    void sync();

protected:
    explicit TableModel(Document &document, QObject *parent = nullptr);

    /// What tells the rows apart, in order. Where entries have no key of their own, numbered().
    virtual QStringList currentKeys() const = 0;
    virtual QStringList titles() const = 0;
    /// field() of a valid index.
    virtual Tano::FieldPath fieldOf(const QModelIndex &index) const;
    /// The flags of a cell beside those of any cell.
    virtual Qt::ItemFlags extraFlags(const QModelIndex &index) const;
    /// For a new package, before its rows are asked for.
    virtual void packageReplaced() {}

    static QStringList numbered(int count);
    Document &document() const { return m_document; }
    Zel::PackageInfoModel *package() const { return m_document.package(); }

    /// To be called at the end of a subclass's constructor.
    void start() { reset(); }

private:
    void reset();
    void setKeys(const QStringList &keys);

    Document &m_document;
    QStringList m_keys;
};

} // namespace Editor
