#pragma once

#include "table_model.h"

namespace Editor {

/// A table of the package's languages and their texts, in the order of PackageModel::languages().
class LanguagesModel : public TableModel {
    Q_OBJECT

public:
    enum Column { Language, Supported, Described, Name, Description, Coverage };
    /// The ISO code of a row's language.
    static constexpr int CodeRole = Qt::UserRole;
    /// The percentage of required texts that a language has; invalid if it requires none.
    static constexpr int PercentRole = Qt::UserRole + 1;

    explicit LanguagesModel(Document &document, QObject *parent = nullptr);

    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    /// The list that the check boxes of a column control.
    static Tano::FieldPath listOf(Column column);
    /// Adds a supported language.
    void add(const QString &code);
    /// Removes the languages of rows, with all their texts.
    void remove(const QVector<int> &rows);

    /// "Supported languages: 10. With a name: 9. With a description: 8."
    QString summary() const;

protected:
    Tano::FieldPath fieldOf(const QModelIndex &index) const override;
    QStringList currentKeys() const override;
    QStringList titles() const override;
    Qt::ItemFlags extraFlags(const QModelIndex &index) const override;

private:
    bool isIn(Column column, const QString &code) const;
    void switchIn(Column column, const QString &code);
    QVariant display(const QModelIndex &index) const;
};

} // namespace Editor
