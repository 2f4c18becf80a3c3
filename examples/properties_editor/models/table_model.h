#pragma once

#include "document/document.h"

#include <QAbstractTableModel>
#include <QStringList>

namespace Editor {

/// The base of small table models over the package. After every edit, updates the rows by
/// insertions, removals and moves, so that views keep their selection.
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

    /// The field that a cell edits as text; empty for other cells.
    Tano::FieldPath field(const QModelIndex &index) const;
    /// The reason why a cell cannot take a text, empty if it can.
    virtual QString refusal(const QModelIndex &index, const QString &text) const;
    /// The choices for a cell, as pairs of value and text; empty if any text is allowed.
    virtual QVector<QPair<QString, QString>> choices(const QModelIndex &index) const;

    const QStringList &keys() const { return m_keys; }
    QString key(const QModelIndex &index) const { return m_keys.value(index.row()); }

    /// Updates rows and cells.
    void sync();

protected:
    explicit TableModel(Document &document, QObject *parent = nullptr);

    /// The keys of the rows, in order. For entries without keys, use numbered().
    virtual QStringList currentKeys() const = 0;
    virtual QStringList titles() const = 0;
    /// field() of a valid index.
    virtual Tano::FieldPath fieldOf(const QModelIndex &index) const;
    /// Additional flags of a cell.
    virtual Qt::ItemFlags extraFlags(const QModelIndex &index) const;
    /// Called for a new package before its rows are read.
    virtual void packageReplaced() {}

    static QStringList numbered(int count);
    /// Announces that the next edit gives a row another key, so that its cells stay the same. Call
    /// sync() after the edit, which may have been refused.
    void expectKey(int row, const QString &key) { m_keys[row] = key; }
    Document &document() const { return m_document; }
    Zel::PackageInfoModel *package() const { return m_document.package(); }

    /// Must be called at the end of a subclass's constructor.
    void start() { reset(); }

private:
    void reset();
    void setKeys(const QStringList &keys);
    void removeRowsBeyond(const QSet<QString> &wanted);

    Document &m_document;
    QStringList m_keys;
};

} // namespace Editor
