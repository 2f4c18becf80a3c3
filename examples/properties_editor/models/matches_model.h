#pragma once

#include <packagemodel/package_search.h>
#include <packagemodel/text_conversion.h>

#include <QAbstractTableModel>

namespace Editor {

/// The matches that a search has found so far, with surrounding words.
class MatchesModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Field, Text };
    /// The path of the field.
    static constexpr int PathRole = Qt::UserRole;

    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

    const Zel::PackageModel::TextMatches &matches() const { return m_matches; }
    void clear();
    void append(const Zel::PackageModel::TextMatches &matches);

private:
    Zel::PackageModel::TextMatches m_matches;
};

} // namespace Editor
