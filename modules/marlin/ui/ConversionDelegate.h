#pragma once

#include <QStyledItemDelegate>

namespace kestrel {

/// Paints the rows of a `ConversionList`: quiet columns, and in the last one the state as a mark or a slim bar with its
/// text.
class ConversionDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

}  // namespace kestrel
