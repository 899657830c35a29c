#pragma once

#include "JSuggestionsSearchField.h"

#include <memory>
#include <vector>

class QScrollBar;

namespace kestrel::tarnwell {

/// The list below a search field: a view over the others of the field's window, which never has the keyboard. Rows
/// scroll by whole rows where the window has too little room for all. Its field puts it where it belongs and tells it
/// what the keys ask for.
class SuggestionList : public QWidget {
    Q_OBJECT
public:
    using RowFactory = std::function<JSuggestionItemView *(QWidget *parent)>;
    static constexpr int none = -1;

    SuggestionList(QWidget *field, QWidget *window);
    ~SuggestionList() override;

    /// Rows that are there already are used again, so that typing does not make the list flicker.
    void setItems(const SuggestionItems &items, const RowFactory &makeRow);
    const std::shared_ptr<const SuggestionItem> &item(int index) const { return m_items.at(index); }

    int highlighted() const { return m_highlighted; }
    /// Brings the row into view as well.
    void setHighlighted(int index);
    /// To the next row (+1) or the one before (-1), with the ends holding; from none to the first or last.
    void moveHighlight(int step);

    /// Below the field, as wide as it or as the widest row, as high as its rows or as the window allows.
    void placeBelow(const QWidget *field);

signals:
    void picked(int index);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    int rowCount() const { return int(m_rows.size()); }
    int rowAt(const QPointF &position) const;
    void layOut();

    SuggestionItems m_items;
    std::vector<std::unique_ptr<JSuggestionItemView>> m_rows;
    QScrollBar *m_scrollBar;  ///< its value is the first row in view
    int m_rowHeight = 0;
    int m_highlighted = none;
};

}  // namespace kestrel::tarnwell
