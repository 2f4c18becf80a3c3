#pragma once

#include "document/document.h"

#include <QAbstractTableModel>
#include <QVector>

namespace Editor {

/// The behaviors of the package, by path and name. Made for very many: each notification of the
/// package only updates the row that it concerns.
class BehaviorsModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Path, Name };

    explicit BehaviorsModel(Document &document, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }

    /// Null for a row outside the list.
    Zel::BehaviorInfoModel *behavior(int row) const;
    int rowOf(const Zel::BehaviorInfoModel *behavior) const;

private:
    void reset();
    void add(Zel::BehaviorInfoModel *behavior);
    void remove(Zel::BehaviorInfoModel *behavior);
    void move(Zel::BehaviorInfoModel *behavior, int from, int to);
    void watch(Zel::BehaviorInfoModel *behavior);
    void announce(const Zel::BehaviorInfoModel *behavior);

    Document &m_document;
    QVector<Zel::BehaviorInfoModel *> m_behaviors;
};

} // namespace Editor
