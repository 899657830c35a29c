#pragma once

#include "media/KeyPictures.h"
#include "media/TranscodePlan.h"

#include <QWidget>

namespace kestrel {

class Thumbnails;

/// The film as a strip of small pictures, with the pieces that are kept, the present position, and marks where it can
/// be cut without encoding. A click goes there; keys: left and right by a second (with Shift by ten, with Ctrl to the
/// next mark), Home, End.
class TimeLine : public QWidget {
    Q_OBJECT
public:
    TimeLine(Thumbnails &thumbnails, QWidget *parent = nullptr);

    void setFilm(const QString &path, double seconds);
    void setPieces(const QList<TranscodePlan::Piece> &pieces);
    void setKeyPictures(const KeyPictures &keys);
    void setSnapping(bool snaps) { m_snaps = snaps; }  ///< a click goes to the mark before it
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
    void click(double x);
    void paintKeyPictures(QPainter &painter) const;

    Thumbnails &m_thumbnails;
    QString m_path;
    double m_seconds = 0;
    double m_position = 0;
    QList<TranscodePlan::Piece> m_pieces;
    KeyPictures m_keys;
    bool m_snaps = false;
};

}  // namespace kestrel
