#include "PieceList.h"

#include "modules/marlin/Pieces.h"
#include "tarnwell/TextKey.h"

#include <QHeaderView>

namespace kestrel {

namespace {

using tarnwell::operator""_key;

enum Column { StartColumn, EndColumn, LengthColumn };

}  // namespace

PieceList::PieceList(QWidget *parent) : QTableWidget(0, 3, parent)
{
    setObjectName(QStringLiteral("pieceList"));
    setAccessibleName("Pieces that are kept"_key.localized());
    setHorizontalHeaderLabels({"Start"_key.localized(), "End"_key.localized(), "Length"_key.localized()});
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    verticalHeader()->hide();
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setShowGrid(false);
    connect(this, &QTableWidget::cellChanged, this, &PieceList::take);
}

void PieceList::setPieces(const QList<TranscodePlan::Piece> &pieces)
{
    const QSignalBlocker blocker(this);
    m_pieces = pieces;
    setRowCount(int(pieces.size()));
    for (int row = 0; row < rowCount(); ++row) {
        const TranscodePlan::Piece &piece = pieces.at(row);
        const QString texts[] = {timeText(piece.start), timeText(piece.end), timeText(piece.end - piece.start)};
        for (int column = 0; column < columnCount(); ++column) {
            auto *item = new QTableWidgetItem(texts[column]);
            if (column == LengthColumn)
                item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            setItem(row, column, item);
        }
    }
}

/// What is no time falls back to what stood there.
void PieceList::take(int row, int column)
{
    QList<TranscodePlan::Piece> pieces = m_pieces;
    if (const auto seconds = secondsOfTime(item(row, column)->text()))
        (column == StartColumn ? pieces[row].start : pieces[row].end) = *seconds;
    tell(pieces, row);
}

void PieceList::startAt(double seconds)
{
    m_start = seconds;
    QList<TranscodePlan::Piece> pieces = m_pieces;
    pieces.append({seconds, m_duration});
    tell(pieces, int(pieces.size()) - 1);
}

/// The end belongs to the piece that was begun last, or to the chosen one.
void PieceList::endAt(double seconds)
{
    QList<TranscodePlan::Piece> pieces = m_pieces;
    const int row = m_start || currentRow() < 0 ? int(pieces.size()) - 1 : currentRow();
    if (row < 0)
        pieces.append({0, seconds});
    else if (seconds > pieces.at(row).start)
        pieces[row].end = seconds;
    m_start.reset();
    tell(pieces, std::max(row, 0));
}

void PieceList::removeCurrent()
{
    QList<TranscodePlan::Piece> pieces = m_pieces;
    if (currentRow() < 0 || currentRow() >= pieces.size())
        return;
    const int row = currentRow();
    pieces.removeAt(row);
    tell(pieces, std::max(0, row - 1));
}

void PieceList::keepOthers()
{
    tell(otherPieces(m_pieces, m_duration), 0);
}

void PieceList::tell(const QList<TranscodePlan::Piece> &pieces, int row)
{
    const QList<TranscodePlan::Piece> asked = soundPieces(pieces, m_duration);
    if (asked.size() > TranscodePlan::mostPieces) {
        setPieces(QList(m_pieces));  // what was typed is taken back
        emit refused(
            tarnwell::Sentence("No more than %1 pieces can be kept."_key, {QString::number(TranscodePlan::mostPieces)})
                .localized());
        return;
    }
    setPieces(asked);
    setCurrentCell(row, StartColumn);
    emit changed(m_pieces);
}

}  // namespace kestrel
