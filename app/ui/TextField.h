#pragma once

#include <QLabel>

namespace kestrel {

/// The home screen's headline. The product's name is drawn with a "4K" badge in place of its last word; any other text
/// in the ordinary way.
class TextField : public QLabel {
    Q_OBJECT
public:
    using QLabel::QLabel;

    void setStringValue(const QString &text);
    bool draw4K() const { return m_draw4K; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void myDraw(QPainter &painter) const;

    bool m_draw4K = false;
};

}  // namespace kestrel
