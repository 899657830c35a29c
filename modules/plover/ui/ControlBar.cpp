#include "ControlBar.h"

#include "foundation/Queues.h"
#include "jobs/RemainingTime.h"
#include "tarnwell/TextKey.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

constexpr std::chrono::seconds noteTime(4);

QString longestText()
{
    JobRecord record;
    record.progress = {.seconds = 9 * 3600 + 59 * 60 + 59, .bytes = qint64(999.99 * 1024 * 1024 * 1024)};
    constexpr qint64 missed = 99'999;
    return ControlBar::textOf(record, missed);
}

}  // namespace

ControlBar::ControlBar()
    : QFrame(nullptr, Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::Tool | Qt::WindowDoesNotAcceptFocus),
      m_text(new QLabel),
      m_level(new QProgressBar),
      m_stop(new QPushButton("Stop"_key.localized())),
      m_pause(new QPushButton("Pause"_key.localized())),
      m_snapshot(new QPushButton("Snapshot"_key.localized()))
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    setObjectName(u"controlBar"_s);
    setWindowTitle("Recording"_key.localized());
    setProperty("card", true);  // with an edge, as it may lie upon a window of its own colour
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 6, 12, 6);
    m_text->ensurePolished();
    m_text->setFixedWidth(m_text->fontMetrics().horizontalAdvance(longestText()));
    m_level->setRange(0, 100);
    m_level->setTextVisible(false);
    m_level->setFixedWidth(60);
    m_level->setAccessibleName("Sound level"_key.localized());
    for (QWidget *widget : std::initializer_list<QWidget *>{m_text, m_level, m_pause, m_stop, m_snapshot})
        layout->addWidget(widget);
    // When all have their style: the bar does not grow into the picture.
    for (const tarnwell::TextKey text : {"Go On"_key, "Pause"_key}) {
        m_pause->setText(text.localized());
        m_pause->setMinimumWidth(std::max(m_pause->minimumWidth(), m_pause->sizeHint().width()));
    }
    connect(m_pause, &QPushButton::clicked, this, &ControlBar::pauseClicked);
    connect(m_stop, &QPushButton::clicked, this, &ControlBar::stopClicked);
    connect(m_snapshot, &QPushButton::clicked, this, &ControlBar::snapshotClicked);
}

bool ControlBar::showBeside(const QRect &area)
{
    constexpr int gap = 8;
    const double ratio = devicePixelRatioF();
    const QRect recorded((QPointF(area.topLeft()) / ratio).toPoint(), area.size() / ratio);
    const QSize size = sizeHint();
    QList<QPoint> places{{recorded.left(), recorded.bottom() + gap},
                         {recorded.left(), recorded.top() - gap - size.height()},
                         {recorded.right() + gap, recorded.top()},
                         {recorded.left() - gap - size.width(), recorded.top()}};
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *screen : screens) {  // else a corner that is not in the picture
        const QRect room = screen->availableGeometry();
        const int right = room.right() + 1 - size.width(), bottom = room.bottom() + 1 - size.height();
        places += {{right, bottom}, {room.left(), bottom}, {right, room.top()}, room.topLeft()};
    }
    for (const QPoint &place : places) {
        const QRect bar(place, size);
        const bool fits = std::any_of(screens.begin(), screens.end(),
                                      [&](const QScreen *screen) { return screen->availableGeometry().contains(bar); });
        if (fits && !bar.intersects(recorded)) {
            setGeometry(bar);
            show();
            return true;
        }
    }
    hide();
    return false;
}

void ControlBar::showAtEdge()
{
    constexpr int margin = 16;
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const QSize size = sizeHint();
    setGeometry({{screen.center().x() - size.width() / 2, screen.bottom() - margin - size.height()}, size});
    show();
}

void ControlBar::setKeys(const QStringList &keys)
{
    QPushButton *const buttons[] = {m_stop, m_pause, m_snapshot};
    for (qsizetype number = 0; number < qsizetype(std::size(buttons)); ++number)
        buttons[number]->setToolTip(keys.value(number));
}

void ControlBar::setSnapshotOffered(bool isOffered)
{
    m_snapshot->setVisible(isOffered);
}

QString ControlBar::textOf(const JobRecord &record, qint64 missed)
{
    QStringList parts{durationText(record.progress.seconds), QLocale().formattedDataSize(record.progress.bytes)};
    if (missed > 0)
        parts.append(Sentence("%1 dropped"_key, {QString::number(missed)}).localized());
    return parts.join(u" · "_s);
}

void ControlBar::showRecord(const JobRecord &record, qint64 missed)
{
    m_pause->setText(record.state == JobState::Paused ? "Go On"_key.localized() : "Pause"_key.localized());
    m_progress = textOf(record, missed);
    if (m_noteEnd.hasExpired())
        showProgress();
}

void ControlBar::showProgress()
{
    m_text->setText(m_progress);
    m_text->setToolTip({});
}

void ControlBar::showNote(const QString &note)
{
    m_noteEnd.setRemainingTime(noteTime);
    m_text->setText(m_text->fontMetrics().elidedText(note, Qt::ElideRight, m_text->width()));
    m_text->setToolTip(note);
    // While it is paused nobody else takes the note away.
    foundation::queue::afterMain(noteTime, [self = QPointer(this), end = m_noteEnd] {
        if (self && self->m_noteEnd == end)
            self->showProgress();
    });
}

void ControlBar::setLevel(double level)
{
    m_level->setValue(int(level * 100));
}

}  // namespace kestrel
