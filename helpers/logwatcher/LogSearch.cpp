#include "LogSearch.h"

#include "LogFile.h"
#include "LogRows.h"

#include <algorithm>

namespace kestrel {

namespace {

constexpr qint64 searchBlockLength = 1024 * 1024;

}  // namespace

LogSearch::LogSearch(const LogFile &file, QObject *parent)
    : QObject(parent),
      m_file(file),
      m_slices([this] { return step(); })
{
}

void LogSearch::start(const QString &text, qint64 from, Direction direction, const LogRows &rows)
{
    m_rows = &rows;
    m_pattern = TextPattern(text);
    m_direction = direction;
    m_total = m_file.size();
    m_from = std::clamp<qint64>(from, 0, m_total);
    m_covered = 0;
    m_percent = 0;
    m_slices.start();
}

bool LogSearch::step()
{
    // The two parts are what lies ahead of the begin and, after the turn, what lies behind it.
    const bool isForward = m_direction == Direction::Forward;
    const qint64 ahead = isForward ? m_total - m_from : m_from;
    const bool hasWrapped = m_covered >= ahead;
    const qint64 length = std::min(searchBlockLength, (hasWrapped ? m_total : ahead) - m_covered);
    if (length <= 0) {
        m_slices.stop();
        emit notFound();
        return false;
    }
    const qint64 place = isForward ? m_from + m_covered : m_from - m_covered;
    const qint64 near = hasWrapped ? (isForward ? place - m_total : place + m_total) : place;
    m_covered += length;
    if (const auto match = isForward ? matchIn(near, near + length) : matchIn(near - length, near)) {
        m_slices.stop();
        emit found(match->begin, match->length, hasWrapped);
        return false;
    }
    if (const int percent = int(m_covered * 100 / m_total); percent != m_percent) {
        m_percent = percent;
        emit progressed(percent);
    }
    return true;
}

/// What begins in a part of the file, whose own end it may reach beyond: the first or the last one, as the direction
/// is.
std::optional<TextPattern::Match> LogSearch::matchIn(qint64 begin, qint64 end) const
{
    std::optional<TextPattern::Match> result;
    m_pattern.forEachIn(m_file.read(begin, end - begin + m_pattern.maximumLength() - 1), [&](TextPattern::Match match) {
        match.begin += begin;
        if (match.begin >= end)
            return false;
        if (m_rows->isShown(match.begin))
            result = match;
        return !result || m_direction == Direction::Backward;
    });
    return result;
}

}  // namespace kestrel
