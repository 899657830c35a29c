#pragma once

#include <QStyledItemDelegate>

namespace kestrel {

/// Paints the rows of a `JobList` in a list of one column: a small picture (`Qt::DecorationRole`), the title over a
/// quiet line of details and one of warnings (`JobList::WarningRole`), and on the right the state as a mark or a slim
/// bar with its text.
class JobRowDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    static constexpr QSize pictureSize{80, 45};  ///< points

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

}  // namespace kestrel
