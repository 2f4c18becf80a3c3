#pragma once

#include <QStyledItemDelegate>

namespace Editor {

/// Draws the coverage of a language as a bar behind the figures.
class CoverageDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};

} // namespace Editor
