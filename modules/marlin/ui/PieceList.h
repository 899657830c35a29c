#pragma once

#include "media/TranscodePlan.h"

#include <QTableWidget>

namespace kestrel {

/// The pieces of a film that are kept, a row each with its beginning and end, which can be written.
class PieceList : public QTableWidget {
    Q_OBJECT
public:
    explicit PieceList(QWidget *parent = nullptr);

    void setDuration(double seconds) { m_duration = seconds; }
    void setPieces(const QList<TranscodePlan::Piece> &pieces);
    /// Of the chosen row, or of a new one: begins, ends at that time.
    void startAt(double seconds);
    void endAt(double seconds);
    void removeCurrent();
    void keepOthers();

signals:
    void changed(const QList<kestrel::TranscodePlan::Piece> &pieces);
    void refused(const QString &reason);  ///< nothing has changed

private:
    void take(int row, int column);
    void tell(const QList<TranscodePlan::Piece> &pieces, int row);

    double m_duration = 0;
    QList<TranscodePlan::Piece> m_pieces;
    std::optional<double> m_start;  ///< of a piece whose end is still to come
};

}  // namespace kestrel
