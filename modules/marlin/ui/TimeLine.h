#pragma once

#include "media/TranscodePlan.h"

#include <QWidget>

namespace kestrel {

class Thumbnails;

/// The film as a strip of small pictures, with the pieces that are kept and the present position. A click goes there;
/// keys: left and right by a second (with Shift by ten), Home, End.
class TimeLine : public QWidget {
    Q_OBJECT
public:
    TimeLine(Thumbnails &thumbnails, QWidget *parent = nullptr);

    void setFilm(const QString &path, double seconds);
    void setPieces(const QList<TranscodePlan::Piece> &pieces);
    void setPosition(double seconds);
    double position() const { return m_position; }

    QSize sizeHint() const override;

signals:
    void moved(double seconds);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    double xOf(double seconds) const;
    void go(double seconds);

    Thumbnails &m_thumbnails;
    QString m_path;
    double m_seconds = 0;
    double m_position = 0;
    QList<TranscodePlan::Piece> m_pieces;
};

}  // namespace kestrel
