#pragma once

#include "table_model.h"

#include <functional>

namespace Editor {

/// A list of texts of the package, and the commands that edit it.
struct ListSource {
    std::function<QStringList()> read;
    std::function<QUndoCommand *(const QString &text)> add;
    std::function<QUndoCommand *(int index)> remove;
    /// Left out for a list whose items cannot be edited.
    std::function<QUndoCommand *(int index, const QString &text, bool isFinal)> set = {};
};

/// One list of texts, such as the tags of a behavior in one language.
class StringListModel : public TableModel {
    Q_OBJECT

public:
    explicit StringListModel(Document &document, const QString &title, QObject *parent = nullptr);
    /// Shows another list. It has to be called again for another package.
    void setSource(const ListSource &source);

    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QString refusal(const QModelIndex &index, const QString &text) const override;

    /// Why a text cannot be added; empty when it can.
    QString additionRefusal(const QString &text) const;
    void add(const QString &text);
    void remove(int row);

protected:
    QStringList currentKeys() const override;
    QStringList titles() const override;
    Qt::ItemFlags extraFlags(const QModelIndex &index) const override;

private:
    QStringList items() const;

    QString m_title;
    ListSource m_source;
};

} // namespace Editor
