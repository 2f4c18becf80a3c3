#pragma once

#include "table_model.h"

#include <functional>

namespace Editor {

/// One list of texts, such as the tags of a behavior in one language.
class StringListModel : public TableModel {
    Q_OBJECT

public:
    /// `list` returns the path of the list, or an empty path. Call sync() when it changes.
    StringListModel(Document &document, const QString &title, std::function<Tano::FieldPath()> list,
                    QObject *parent = nullptr);

    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QString refusal(const QModelIndex &index, const QString &text) const override;

    Tano::FieldPath list() const { return m_list(); }
    /// The reason why a text cannot be added, empty if it can.
    QString additionRefusal(const QString &text) const;
    /// Adds the texts that can be added, as one undo step.
    void add(const QStringList &texts);

protected:
    Tano::FieldPath fieldOf(const QModelIndex &index) const override;
    QStringList currentKeys() const override;
    QStringList titles() const override;
    Qt::ItemFlags extraFlags(const QModelIndex &index) const override;

private:
    QStringList items() const;

    QString m_title;
    std::function<Tano::FieldPath()> m_list;
};

} // namespace Editor
