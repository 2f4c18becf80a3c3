#include "coverage_delegate.h"

#include "models/languages_model.h"

#include <QPainter>

namespace Editor {

void CoverageDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const {
    QStyledItemDelegate::paint(painter, option, index);
    const QVariant coverage = index.data(LanguagesModel::PercentRole);
    if (!coverage.isValid())
        return;
    const int percent = coverage.toInt();
    const QRect full = option.rect.adjusted(4, option.rect.height() - 5, -8, -2);
    QRect filled = full;
    filled.setWidth(full.width() * percent / 100);
    if (option.direction == Qt::RightToLeft)
        filled.moveRight(full.right());
    painter->save();
    painter->setPen(Qt::NoPen);
    painter->setBrush(option.palette.color(QPalette::Midlight));
    painter->drawRect(full);
    painter->setBrush(percent == 100 ? QColor(0x2e, 0x9e, 0x5b) : QColor(0xd9, 0x98, 0x00));
    painter->drawRect(filled);
    painter->restore();
}

} // namespace Editor
