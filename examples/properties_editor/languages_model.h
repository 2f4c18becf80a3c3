#pragma once

#include "table_model.h"

namespace Editor {

/// The matrix of the package's languages by its texts: one row for each language that it supports,
/// is described in, or has texts in, in that order.
class LanguagesModel : public TableModel {
    Q_OBJECT

public:
    enum Column { Language, Supported, Described, Name, Description, Coverage };
    /// The ISO code of a row's language.
    static constexpr int CodeRole = Qt::UserRole;
    /// How many of a row's texts there are, in percent.
    static constexpr int PercentRole = Qt::UserRole + 1;

    explicit LanguagesModel(Document &document, QObject *parent = nullptr);

    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    /// "Supported languages: 10. With a name: 9. With a description: 8."
    QString summary() const;

protected:
    QStringList currentKeys() const override;
    QStringList titles() const override;
    Qt::ItemFlags extraFlags(const QModelIndex &index) const override;
    void packageReplaced() override;

private:
    struct Count {
        int present = 0;
        int wanted = 0;
    };
    void countBehaviorTexts() const;
    Count coverage(const QString &code) const;
    QVariant display(const QModelIndex &index) const;

    QStringList m_mentioned; // the languages that the file speaks of anywhere
    // Counted when they are asked for, since there may be very many.
    mutable QHash<QString, int> m_behaviorTexts;
    mutable int m_behaviorTextsWanted = 0;
    mutable int m_countedRevision = -1;
};

} // namespace Editor
